#include "platform/windows/ModalPresentation.h"

#include <QQuickWindow>
#include <utility>

#include "platform/controllers/ViewController.h"
#include "platform/motion/Frames.h"
#include "platform/views/Stage.h"
#include "platform/windows/Window.h"

namespace tarnwick {

namespace {

ModalPresentation* presentationOf(ViewController& controller) {
    auto* window = qobject_cast<Window*>(controller.view()->window());
    return window == nullptr ? nullptr : &window->modalPresentation();
}

}  // namespace

void ViewController::presentModalViewController(const std::shared_ptr<ViewController>& controller,
                                                Animated animated) {
    if (auto* presentation = presentationOf(*this))
        presentation->present(*this, controller, animated);
}

void ViewController::dismissViewControllerAnimated(Animated animated,
                                                   std::function<void()> completion) {
    if (auto* presentation = presentationOf(*this))
        presentation->dismiss(*this, animated, std::move(completion));
}

ModalPresentation::ModalPresentation(Stage& stage, QQuickItem& container)
    : stage_(stage), container_(container) {}

ModalPresentation::~ModalPresentation() {
    cutShort();
}

void ModalPresentation::present(ViewController& presenter,
                                const std::shared_ptr<ViewController>& controller,
                                Animated animated) {
    if (presented_)
        return;
    end();  // one that still slides away
    presented_ = controller;
    presenter_ = &presenter;
    connect(&presenter, &QObject::destroyed, this, [this] { cutShort(); });
    stage_.cover();
    QQuickItem* sheet = controller->view();
    addFillingSubview(&container_, sheet);
    if (animated == Animated::Yes) {
        applyAtOnce({{sheet, Change::Property::Y, container_.height()}});
        animate(sheetDuration, Easing::Out, {{sheet, Change::Property::Y, 0}});
    }
    sheet->forceActiveFocus(Qt::OtherFocusReason);
}

void ModalPresentation::dismiss(const ViewController& presenter, Animated animated,
                                std::function<void()> completion) {
    if (presented_ && presenter_ == &presenter)
        leave(animated, std::move(completion));
}

void ModalPresentation::leave(Animated animated, std::function<void()> completion) {
    presenter_->disconnect(this);
    leaving_ = std::exchange(presented_, nullptr);
    leaving_->view()->setEnabled(false);
    const double duration = animated == Animated::Yes ? sheetDuration : 0;
    const QPointer<ModalPresentation> self = this;
    animate(duration, Easing::InOut, {{leaving_->view(), Change::Property::Y, container_.height()}},
            [self, completion = std::move(completion)](bool finished) {
                if (self && finished)
                    self->end();
                if (self && completion)
                    completion();
            });
}

void ModalPresentation::end() {
    const auto gone = std::exchange(leaving_, nullptr);
    if (!gone)
        return;
    removeFromSuperview(gone->view());
    gone->view()->setEnabled(true);
    applyAtOnce({{gone->view(), Change::Property::Y, 0}});
    stage_.uncover();
    if (!stage_.isCovered())
        stage_.forceActiveFocus(Qt::OtherFocusReason);
}

void ModalPresentation::cutShort(const std::function<void()>& whenKept) {
    end();  // one that still slides away
    const auto cut = std::exchange(presented_, nullptr);
    if (!cut)
        return whenKept();
    if (presenter_)
        presenter_->disconnect(this);
    cut->presentationWillBeCutShort(whenKept);
    leaving_ = cut;
    end();
}

}  // namespace tarnwick
