import Tarnwick

Storyboard {
    initialScene: "RevealViewController"

    Scene {
        identifier: "RevealViewController"
        controller: "RevealViewController"

        Segue { identifier: "sw_rear"; destination: "menu"; kind: "RevealViewControllerSegueSetController" }
        Segue { identifier: "sw_front"; destination: "blueNC"; kind: "RevealViewControllerSegueSetController" }
        Segue { identifier: "sw_right"; destination: "right"; kind: "RevealViewControllerSegueSetController" }
    }

    Scene {
        identifier: "menu"
        controller: "MenuController"
        view: Qt.resolvedUrl("Menu.qml")

        Segue { identifier: "push"; destination: "greenNC"; kind: "RevealViewControllerSeguePushController" }
    }

    Scene {
        identifier: "blueNC"
        controller: "NavigationController"

        Segue { identifier: "root"; destination: "blue"; kind: "NavigationRootSegue" }
    }

    Scene {
        identifier: "greenNC"
        controller: "NavigationController"

        Segue { identifier: "root"; destination: "green"; kind: "NavigationRootSegue" }
    }

    Scene { identifier: "blue"; controller: "ScreenController"; view: Qt.resolvedUrl("ButtonScreen.qml") }
    Scene { identifier: "green"; controller: "ScreenController"; view: Qt.resolvedUrl("GreenScreen.qml") }
    Scene { identifier: "right"; controller: "ViewController"; view: Qt.resolvedUrl("Right.qml") }
}
