#pragma once

#include <QString>
#include <memory>

#include "core/Alert.h"
#include "platform/windows/Window.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

class ProgressHUD;

// A window with a reveal container whose menu lists the scenes; they appear over a screen with
// buttons.
class Gallery : public Window {
    Q_OBJECT

public:
    // Without animation, for pictures, scenes appear at once and stay.
    explicit Gallery(Animated animated);
    ~Gallery() override;

    Animated animated() const { return animated_; }
    RevealViewController& reveal() const { return *reveal_; }
    // A HUD over the front screen; with animation it hides itself after a few seconds.
    ProgressHUD* showHud(int animationType = 0);
    // An alert without a button goes away like a HUD.
    void showAlert(const Alert& alert);
    void push();

private slots:
    void openScene(int place);

private:
    const Animated animated_;
    std::shared_ptr<RevealViewController> reveal_;
};

}  // namespace tarnwick
