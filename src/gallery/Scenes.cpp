#include "gallery/Scenes.h"

#include "gallery/Gallery.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick {

namespace {

using Dressing = std::function<void(ProgressHUD& hud)>;

constexpr QSize smallestScreen(320, 480);

const QString longText = QStringLiteral(
    "This takes as long as there are pictures to copy, and the device should stay awake until "
    "then");

Scene hudScene(const QString& title, const QString& name, const Dressing& dress,
               ProgressHUD::AnimationType animation = ProgressHUD::AnimationFade) {
    return {"Progress HUD", title, name,
            [dress, animation](Gallery& gallery) { dress(*gallery.showHud(animation)); }};
}

Dressing inMode(ProgressHUD::Mode mode, double progress, const QString& text = {}) {
    return [mode, progress, text](ProgressHUD& hud) {
        hud.setMode(mode);
        hud.setProgress(progress);
        hud.setLabelText(text);
    };
}

void withDetails(ProgressHUD& hud) {
    hud.setLabelText("Backup in progress...");
    hud.setDetailsLabelText(longText);
}

void withTooManyDetails(ProgressHUD& hud) {
    hud.setLabelText("Backup in progress...\nStill a long way to go");
    hud.setDetailsLabelText((longText + ". ").repeated(20));
}

void squareAndDimmed(ProgressHUD& hud) {
    hud.setLabelText("Loading");
    hud.setSquare(true);
    hud.setDimBackground(true);
}

void colouredAndShifted(ProgressHUD& hud) {
    hud.setLabelText("Restoration in progress...");
    hud.setColor(QColor(0x8e, 0x24, 0x3c, 0xe0));
    hud.setYOffset(-150);
}

void withOwnView(ProgressHUD& hud) {
    auto* bar = new BarProgressView;
    bar->QObject::setParent(&hud);
    bar->setProgress(0.4);
    bar->setProgressColor(QColor(0xff, 0xcc, 0x00));
    hud.setCustomView(bar);
    hud.setMode(ProgressHUD::ModeCustomView);
    hud.setLabelText("A view of one's own");
}

std::vector<Scene> hudScenes() {
    using Hud = ProgressHUD;
    return {
        hudScene("Spinner", "hud-indeterminate",
                 inMode(Hud::ModeIndeterminate, 0, "Backup in progress...")),
        hudScene(
            "Spinner alone, zooming up", "hud-indeterminate-alone", [](ProgressHUD&) {},
            Hud::AnimationZoomUp),
        hudScene("Pie, zooming down", "hud-pie", inMode(Hud::ModePie, 0.3, "Loading"),
                 Hud::AnimationZoomDown),
        hudScene("Ring", "hud-ring", inMode(Hud::ModeRing, 0.7, "Loading")),
        hudScene("Bar, begun", "hud-bar-start", inMode(Hud::ModeBar, 0.05)),
        hudScene("Bar, half done", "hud-bar-middle", inMode(Hud::ModeBar, 0.5, "Loading")),
        hudScene("Bar, nearly done", "hud-bar-end", inMode(Hud::ModeBar, 0.97)),
        hudScene("Text only", "hud-text-only", inMode(Hud::ModeTextOnly, 0, "Done")),
        hudScene("Own view", "hud-custom", withOwnView),
        hudScene("Details", "hud-details", withDetails),
        hudScene("Too many details", "hud-details-many", withTooManyDetails),
        hudScene("Square, dimmed", "hud-square-dimmed", squareAndDimmed),
        hudScene("Coloured, shifted", "hud-coloured-shifted", colouredAndShifted),
    };
}

Scene alertScene(const QString& title, const QString& name, const Alert& alert,
                 const QSize& size = {375, 667}) {
    return {"Alerts", title, name, [alert](Gallery& gallery) { gallery.showAlert(alert); }, size};
}

Alert withButtons(int others) {
    Alert alert = {.title = "Restore", .message = "What shall be done next ?"};
    for (int number = 1; number <= others; ++number)
        alert.otherButtonTitles.push_back("Choice " + std::to_string(number));
    return alert;
}

Alert veryLong() {
    Alert alert = {.title = "All that there is to say"};
    for (int line = 1; line <= 60; ++line)
        alert.message += "Line " + std::to_string(line) + " of a very long message.\n";
    return alert;
}

std::vector<Scene> alertScenes() {
    const Alert close = {.title = "Accounts Backup", .message = "Backup done !"};
    return {
        alertScene("One button", "alert-close", close),
        alertScene("Two buttons", "alert-two",
                   {.title = "Packages Restore",
                    .message = "Restoration done ! Do you want to respring now ?",
                    .otherButtonTitles = {"Respring"}}),
        alertScene("Three buttons", "alert-three", withButtons(2)),
        alertScene("No button, for three seconds", "alert-none",
                   {.message = "Backup in progress...", .cancelButtonTitle = ""}),
        alertScene("Many buttons", "alert-many", withButtons(11), smallestScreen),
        alertScene("Many buttons, on its side", "alert-many-side", withButtons(11),
                   smallestScreen.transposed()),
        alertScene("A very long message", "alert-long", veryLong()),
        {"Alerts", "Two, one over the other", "alert-stacked",
         [close](Gallery& gallery) {
             gallery.showAlert(veryLong());
             gallery.showAlert(close);
         }},
    };
}

Scene containerScene(const QString& title, const QString& name,
                     const std::function<void(Gallery&)>& show) {
    return {"Container", title, name, show};
}

std::function<void(Gallery&)> atPosition(RevealPosition position) {
    return [position](Gallery& gallery) {
        gallery.reveal().presentFrontViewHierarchically = false;
        gallery.reveal().setFrontViewPosition(position, gallery.animated());
    };
}

void hierarchical(Gallery& gallery) {
    gallery.reveal().presentFrontViewHierarchically = true;
    gallery.reveal().setFrontViewPosition(FrontPositionSlidRight, gallery.animated());
}

std::vector<Scene> containerScenes() {
    return {
        containerScene("Closed", "container-closed", atPosition(FrontPositionClosed)),
        containerScene("Menu", "container-menu", atPosition(FrontPositionSlidRight)),
        containerScene("Menu, all of it", "container-menu-most",
                       atPosition(FrontPositionSlidRightMost)),
        containerScene("Front removed", "container-removed",
                       atPosition(FrontPositionSlidRightRemoved)),
        containerScene("Right screen", "container-right", atPosition(FrontPositionSlidLeft)),
        containerScene("Front below the bars", "container-hierarchical", hierarchical),
        containerScene("Another screen", "container-push",
                       [](Gallery& gallery) { gallery.push(); }),
    };
}

}  // namespace

const std::vector<Scene>& scenes() {
    static const std::vector<Scene> all = [] {
        std::vector<Scene> scenes;
        for (const auto& group : {containerScenes(), alertScenes(), hudScenes()})
            scenes.insert(scenes.end(), group.begin(), group.end());
        return scenes;
    }();
    return all;
}

}  // namespace tarnwick
