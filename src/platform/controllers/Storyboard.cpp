#include "platform/controllers/Storyboard.h"

#include <QQmlComponent>
#include <algorithm>
#include <utility>

#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

template <class Object>
std::unique_ptr<Object> objectFrom(const QUrl& file) {
    QQmlComponent component(&applicationQmlEngine(), file);
    if (!component.isReady())
        throw StoryboardError(component.errorString());
    QObject* object = component.create();
    if (auto* wanted = qobject_cast<Object*>(object))
        return std::unique_ptr<Object>(wanted);
    delete object;
    throw StoryboardError(QStringLiteral("%1 is not a %2")
                              .arg(file.toString(), Object::staticMetaObject.className()));
}

template <class Made>
const Made* found(const std::map<QString, Made>& made, const QString& name) {
    const auto place = made.find(name);
    return place == made.end() ? nullptr : &place->second;
}

}  // namespace

const StoryboardClasses::MakeController* StoryboardClasses::controller(const QString& name) const {
    return found(controllers_, name);
}

const StoryboardClasses::MakeSegue* StoryboardClasses::segue(const QString& name) const {
    return found(segues_, name);
}

std::shared_ptr<const Storyboard> Storyboard::load(const QUrl& file, StoryboardClasses classes) {
    return std::shared_ptr<const Storyboard>(new Storyboard(file, std::move(classes)));
}

Storyboard::Storyboard(const QUrl& file, StoryboardClasses classes)
    : declaration_(objectFrom<StoryboardDeclaration>(file)), classes_(std::move(classes)) {}

const SceneDeclaration* Storyboard::find(const QString& identifier) const {
    for (const SceneDeclaration* scene : declaration_->scenes)
        if (scene->identifier == identifier)
            return scene;
    return nullptr;
}

const SceneDeclaration& Storyboard::sceneCalled(const QString& identifier) const {
    const SceneDeclaration* scene = find(identifier);
    if (scene == nullptr)
        throw StoryboardError(QStringLiteral("no scene \"%1\"").arg(identifier));
    return *scene;
}

std::shared_ptr<ViewController> Storyboard::instantiateInitialViewController() const {
    return instantiateViewController(declaration_->initialScene);
}

std::shared_ptr<ViewController> Storyboard::instantiateViewController(const QString& scene) const {
    const QString& name = sceneCalled(scene).controller;
    const auto* make = classes_.controller(name);
    if (make == nullptr)
        throw StoryboardError(QStringLiteral("scene \"%1\": no class \"%2\"").arg(scene, name));
    auto controller = (*make)();
    controller->cameFrom(shared_from_this(), scene);
    return controller;
}

QQuickItem* Storyboard::makeView(const QString& scene) const {
    const QUrl& file = sceneCalled(scene).view;
    return file.isEmpty() ? new QQuickItem : objectFrom<QQuickItem>(file).release();
}

void Storyboard::performSegue(ViewController& source, const QString& identifier) const {
    const auto& segues = sceneCalled(source.scene()).segues;
    const auto segue = std::find_if(
        segues.begin(), segues.end(),
        [&identifier](const SegueDeclaration* each) { return each->identifier == identifier; });
    if (segue == segues.end())
        throw MissingSegue(
            QStringLiteral("scene \"%1\" has no segue \"%2\"").arg(source.scene(), identifier));
    const auto* make = classes_.segue((*segue)->kind);
    if (make == nullptr)
        throw StoryboardError(
            QStringLiteral("segue \"%1\": no class \"%2\"").arg(identifier, (*segue)->kind));
    (*make)({.identifier = identifier,
             .source = source.shared_from_this(),
             .destination = instantiateViewController((*segue)->destination)})
        ->perform();
}

}  // namespace tarnwick
