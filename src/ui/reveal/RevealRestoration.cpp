// What is kept of a reveal container when its state is restored.
#include <QColor>
#include <QSizeF>

#include "platform/controllers/StateCoder.h"
#include "platform/controllers/Storyboard.h"
#include "ui/reveal/RevealView.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

namespace {

constexpr const char* containerScene = "RevealViewController";

}  // namespace

struct RevealViewController::Restorable {
    const char* key;
    QVariant (*read)(const RevealViewController&);
    void (*write)(RevealViewController&, const QVariant&);

    static const std::vector<Restorable>& all();

    // A plain property.
    template <auto property>
    static Restorable plain(const char* key) {
        using Value = std::remove_cvref_t<decltype(std::declval<RevealViewController>().*property)>;
        return {key, [](const RevealViewController& reveal) { return QVariant(reveal.*property); },
                [](RevealViewController& reveal, const QVariant& value) {
                    if constexpr (std::is_enum_v<Value>)
                        reveal.*property = static_cast<Value>(value.toInt());
                    else
                        reveal.*property = value.value<Value>();
                }};
    }

    // A part of the front view's shadow.
    template <auto part>
    static Restorable shadow(const char* key) {
        using Value = std::remove_cvref_t<decltype(std::declval<Shadow>().*part)>;
        return {key,
                [](const RevealViewController& reveal) {
                    return QVariant(reveal.frontViewShadow_.*part);
                },
                [](RevealViewController& reveal, const QVariant& value) {
                    reveal.frontViewShadow_.*part = value.value<Value>();
                    reveal.reloadShadow();
                }};
    }
};

const std::vector<RevealViewController::Restorable>& RevealViewController::Restorable::all() {
    using Reveal = RevealViewController;
    static const std::vector<Restorable> values = {
        plain<&Reveal::rearViewRevealWidth>("_rearViewRevealWidth"),
        plain<&Reveal::rearViewRevealOverdraw>("_rearViewRevealOverdraw"),
        plain<&Reveal::rearViewRevealDisplacement>("_rearViewRevealDisplacement"),
        plain<&Reveal::rightViewRevealWidth>("_rightViewRevealWidth"),
        plain<&Reveal::rightViewRevealOverdraw>("_rightViewRevealOverdraw"),
        plain<&Reveal::rightViewRevealDisplacement>("_rightViewRevealDisplacement"),
        plain<&Reveal::bounceBackOnOverdraw>("_bounceBackOnOverdraw"),
        plain<&Reveal::bounceBackOnLeftOverdraw>("_bounceBackOnLeftOverdraw"),
        plain<&Reveal::stableDragOnOverdraw>("_stableDragOnOverdraw"),
        plain<&Reveal::stableDragOnLeftOverdraw>("_stableDragOnLeftOverdraw"),
        plain<&Reveal::presentFrontViewHierarchically>("_presentFrontViewHierarchically"),
        plain<&Reveal::quickFlickVelocity>("_quickFlickVelocity"),
        plain<&Reveal::toggleAnimationDuration>("_toggleAnimationDuration"),
        plain<&Reveal::toggleAnimationType>("_toggleAnimationType"),
        plain<&Reveal::springDampingRatio>("_springDampingRatio"),
        plain<&Reveal::replaceViewAnimationDuration>("_replaceViewAnimationDuration"),
        shadow<&Shadow::radius>("_frontViewShadowRadius"),
        shadow<&Shadow::offset>("_frontViewShadowOffset"),
        shadow<&Shadow::opacity>("_frontViewShadowOpacity"),
        shadow<&Shadow::color>("_frontViewShadowColor"),
        plain<&Reveal::userInteractionStore_>("_userInteractionStore"),
        plain<&Reveal::draggableBorderWidth>("_draggableBorderWidth"),
        {"_clipsViewsToBounds",
         [](const Reveal& reveal) { return QVariant(reveal.clipsViewsToBounds_); },
         [](Reveal& reveal, const QVariant& value) {
             reveal.setClipsViewsToBounds(value.toBool());
         }},
        plain<&Reveal::extendsPointInsideHit>("_extendsPointInsideHit"),
    };
    return values;
}

void RevealViewController::encodeRestorableState(StateCoder& coder) const {
    for (const Restorable& value : Restorable::all())
        coder.encode(value.key, value.read(*this));
    coder.encodeController("_rearViewController", rearViewController_.get());
    coder.encodeController("_frontViewController", frontViewController_.get());
    coder.encodeController("_rightViewController", rightViewController_.get());
    coder.encode("_frontViewPosition", static_cast<int>(frontViewPosition_));
}

void RevealViewController::decodeRestorableState(const StateCoder& coder) {
    for (const Restorable& value : Restorable::all())
        if (const QVariant written = coder.decode(value.key); written.isValid())
            value.write(*this, written);
    if (const auto rear = coder.decodeController("_rearViewController"))
        setRearViewController(rear);
    if (const auto front = coder.decodeController("_frontViewController"))
        setFrontViewController(front);
    if (const auto right = coder.decodeController("_rightViewController"))
        setRightViewController(right);
    if (const QVariant position = coder.decode("_frontViewPosition"); position.isValid())
        setFrontViewPosition(static_cast<RevealPosition>(position.toInt()));
}

RevealViewController::Controller RevealViewController::viewControllerWithRestorationIdentifierPath(
    const QStringList& path, const StateCoder& coder) {
    if (!coder.storyboard())
        return nullptr;
    auto container = coder.storyboard()->instantiateViewController(containerScene);
    container->restorationIdentifier = path.isEmpty() ? QString() : path.last();
    container->restorationClass = &staticMetaObject;
    return container;
}

}  // namespace tarnwick
