#pragma once

#include <QObject>
#include <QQmlListProperty>
#include <QQuickItem>
#include <QString>
#include <QUrl>
#include <QtQmlIntegration>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "platform/controllers/ViewController.h"

namespace tarnwick {

// A way out of a scene, as declared in the storyboard file.
class SegueDeclaration : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Segue)
    Q_PROPERTY(QString identifier MEMBER identifier)
    Q_PROPERTY(QString destination MEMBER destination)
    Q_PROPERTY(QString kind MEMBER kind)

public:
    QString identifier;
    QString destination;  // a scene's identifier
    QString kind;         // the name of its class
};

// A controller with its view, as declared in the storyboard file.
class SceneDeclaration : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Scene)
    Q_PROPERTY(QString identifier MEMBER identifier)
    Q_PROPERTY(QString controller MEMBER controller)
    Q_PROPERTY(QUrl view MEMBER view)
    Q_PROPERTY(QQmlListProperty<tarnwick::SegueDeclaration> segues READ segueList)
    Q_CLASSINFO("DefaultProperty", "segues")

public:
    QString identifier;
    QString controller;  // the name of its class
    QUrl view;           // the file of the view; empty if the controller creates it
    QList<SegueDeclaration*> segues;

private:
    QQmlListProperty<SegueDeclaration> segueList() { return {this, &segues}; }
};

// The root element of a storyboard file.
class StoryboardDeclaration : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Storyboard)
    Q_PROPERTY(QString initialScene MEMBER initialScene)
    Q_PROPERTY(QQmlListProperty<tarnwick::SceneDeclaration> scenes READ sceneList)
    Q_CLASSINFO("DefaultProperty", "scenes")

public:
    QString initialScene;
    QList<SceneDeclaration*> scenes;

private:
    QQmlListProperty<SceneDeclaration> sceneList() { return {this, &scenes}; }
};

// A transition from one controller to another, about to be performed; each kind is a subclass.
class StoryboardSegue {
public:
    struct Ends {
        QString identifier;
        std::shared_ptr<ViewController> source;
        std::shared_ptr<ViewController> destination;
    };

    explicit StoryboardSegue(Ends ends) : ends_(std::move(ends)) {}
    virtual ~StoryboardSegue() = default;
    StoryboardSegue(const StoryboardSegue&) = delete;
    StoryboardSegue& operator=(const StoryboardSegue&) = delete;

    virtual void perform() = 0;

protected:
    const Ends& ends() const { return ends_; }

private:
    Ends ends_;
};

// The classes that a storyboard file refers to.
class StoryboardClasses {
public:
    using MakeController = std::function<std::shared_ptr<ViewController>()>;
    using MakeSegue = std::function<std::unique_ptr<StoryboardSegue>(StoryboardSegue::Ends)>;

    void addController(const QString& name, MakeController make) {
        controllers_[name] = std::move(make);
    }
    template <class Segue>
    void addSegue(const QString& name) {
        segues_[name] = [](StoryboardSegue::Ends ends) {
            return std::make_unique<Segue>(std::move(ends));
        };
    }

    // Null if there is no such class.
    const MakeController* controller(const QString& name) const;
    const MakeSegue* segue(const QString& name) const;

private:
    std::map<QString, MakeController> controllers_;
    std::map<QString, MakeSegue> segues_;
};

// The scenes of a program and the ways between them, from one file. All operations throw a
// StoryboardError, without other effects, if the file lacks something. Main thread.
class Storyboard : public std::enable_shared_from_this<Storyboard> {
public:
    static std::shared_ptr<const Storyboard> load(const QUrl& file, StoryboardClasses classes);

    bool hasScene(const QString& identifier) const { return find(identifier) != nullptr; }
    std::shared_ptr<ViewController> instantiateInitialViewController() const;
    std::shared_ptr<ViewController> instantiateViewController(const QString& scene) const;
    // The scene's view, or a plain item if the scene has none; owned by the caller.
    QQuickItem* makeView(const QString& scene) const;
    void performSegue(ViewController& source, const QString& identifier) const;

private:
    Storyboard(const QUrl& file, StoryboardClasses classes);

    const SceneDeclaration* find(const QString& identifier) const;
    const SceneDeclaration& sceneCalled(const QString& identifier) const;

    std::unique_ptr<StoryboardDeclaration> declaration_;
    StoryboardClasses classes_;
};

}  // namespace tarnwick
