// The cost of each frame of a sliding container: everything that the main thread does for it.
#include <QAnimationDriver>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/SystemCommandRunner.h"
#include "gallery/Gallery.h"
#include "platform/threads/PlatformQueues.h"
#include "ui/hud/ProgressHUD.h"

using namespace tarnwick;

namespace {

constexpr qint64 frameTime = 16;   // milliseconds
constexpr qint64 slideTime = 400;  // milliseconds, from one toggle to the next
constexpr const char* command = "head -c 3000000 /dev/urandom | gzip >/dev/null";

// Animations advance by a frame when the frame is made.
class FrameDriver : public QAnimationDriver {
public:
    FrameDriver() { install(); }

    void step() {
        now_ += frameTime;
        if (isRunning())
            advanceAnimation();
    }
    qint64 elapsed() const override { return now_ - start_; }

protected:
    void start() override {
        start_ = now_;
        QAnimationDriver::start();
    }

private:
    qint64 now_ = 0;
    qint64 start_ = 0;
};

// Makes frames at their time and keeps what each took, in milliseconds.
class Measurement : public QObject {
public:
    Measurement(Gallery& gallery, std::size_t frames) : gallery_(gallery), frames_(frames) {
        gallery_.showHud()->setLabelText("Backup in progress...");
        timer_.setTimerType(Qt::PreciseTimer);
        connect(&timer_, &QTimer::timeout, this, [this] { makeFrame(); });
        timer_.start(frameTime);
    }

    const std::vector<double>& costs() const { return costs_; }

private:
    void makeFrame() {
        QElapsedTimer taken;
        taken.start();
        if (static_cast<qint64>(costs_.size()) % (slideTime / frameTime) == 0)
            gallery_.reveal().revealToggle();
        QCoreApplication::sendPostedEvents();
        driver_.step();
        gallery_.update();
        QEvent frame(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&gallery_, &frame);
        costs_.push_back(static_cast<double>(taken.nsecsElapsed()) / 1e6);
        if (costs_.size() == frames_)
            QCoreApplication::quit();
    }

    Gallery& gallery_;
    const std::size_t frames_;
    FrameDriver driver_;
    QTimer timer_;
    std::vector<double> costs_;
};

double part(std::vector<double> sorted, double share) {
    const auto place = static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1));
    return sorted.at(place);
}

}  // namespace

int main(int count, char** values) {
    const QGuiApplication application(count, values);
    const auto frames = static_cast<std::size_t>(count > 1 ? std::atoi(values[1]) : 1200);
    const int threads = count > 2 ? std::atoi(values[2]) : 0;

    std::atomic<bool> done = false;
    std::atomic<int> commands = 0;
    PlatformQueues queues;
    for (int number = 0; number < threads; ++number)
        queues.runInBackground([&done, &commands] {
            SystemCommandRunner runner;
            for (; !done; ++commands)
                runner.run(command);
        });

    Gallery gallery(Animated::No);
    gallery.show();
    QCoreApplication::processEvents();
    Measurement measurement(gallery, frames);
    QGuiApplication::exec();
    done = true;

    std::vector<double> costs = measurement.costs();
    std::ranges::sort(costs);
    const auto late = std::ranges::count_if(costs, [](double cost) { return cost > frameTime; });
    std::printf(
        "  %zu frames: p50 %.2f ms, p99 %.2f ms, worst %.2f ms, %td over %lld ms; %d commands "
        "meanwhile\n",
        costs.size(), part(costs, 0.5), part(costs, 0.99), costs.back(), late, frameTime,
        commands.load());
    return 0;
}
