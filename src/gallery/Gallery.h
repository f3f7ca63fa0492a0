#pragma once

#include <QString>
#include <memory>

#include "core/Alert.h"
#include "platform/windows/Window.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

class ProgressHUD;

// A window with a reveal container: its menu lists the scenes, and a screen with buttons is in
// front for them to stand over.
class Gallery : public Window {
    Q_OBJECT

public:
    // Scenes come at once, and stay, where nobody is to watch them move.
    explicit Gallery(Animated animated);
    ~Gallery() override;

    Animated animated() const { return animated_; }
    RevealViewController& reveal() const { return *reveal_; }
    // A HUD over the front screen; it goes after a few seconds where scenes move.
    ProgressHUD* showHud(int animationType = 0);
    // One without a button goes like a HUD.
    void showAlert(const Alert& alert);
    void push();

private slots:
    void openScene(int place);

private:
    const Animated animated_;
    std::shared_ptr<RevealViewController> reveal_;
};

}  // namespace tarnwick
