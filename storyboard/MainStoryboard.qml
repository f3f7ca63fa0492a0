import Tarnwick

Storyboard {
    component SetController: Segue { kind: "RevealViewControllerSegueSetController" }
    component PushController: Segue { kind: "RevealViewControllerSeguePushController" }
    component NavigationScene: Scene {
        id: navigation

        required property string root

        controller: "ScreenNavigationController"

        Segue { identifier: "root"; destination: navigation.root; kind: "NavigationRootSegue" }
    }

    initialScene: "RevealViewController"

    Scene {
        identifier: "RevealViewController"
        controller: "MenuContainer"

        SetController { identifier: "sw_rear"; destination: "sidebar" }
        SetController { identifier: "sw_front"; destination: "backupNC" }
    }

    Scene {
        identifier: "sidebar"
        controller: "SidebarViewController"
        view: Qt.resolvedUrl("Sidebar.qml")

        PushController { identifier: "backup"; destination: "backupNC" }
        PushController { identifier: "restore"; destination: "restoreNC" }
        PushController { identifier: "cloud"; destination: "cloudNC" }
        PushController { identifier: "options"; destination: "optionsNC" }
        PushController { identifier: "help"; destination: "helpNC" }
    }

    NavigationScene { identifier: "backupNC"; root: "backup" }
    NavigationScene { identifier: "restoreNC"; root: "restore" }
    NavigationScene { identifier: "cloudNC"; root: "cloud" }
    NavigationScene { identifier: "optionsNC"; root: "options" }
    NavigationScene { identifier: "helpNC"; root: "help" }

    Scene { identifier: "backup"; controller: "MainViewController"; view: Qt.resolvedUrl("Backup.qml") }
    Scene { identifier: "restore"; controller: "RestoreViewController"; view: Qt.resolvedUrl("Restore.qml") }
    Scene { identifier: "cloud"; controller: "CloudViewController"; view: Qt.resolvedUrl("Cloud.qml") }
    Scene { identifier: "options"; controller: "OptionsViewController"; view: Qt.resolvedUrl("Options.qml") }
    Scene { identifier: "help"; controller: "HelpViewController"; view: Qt.resolvedUrl("Help.qml") }
}
