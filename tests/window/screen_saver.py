"""Stands in for the screen saver of a session: writes a line for each request to stay awake."""

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name="org.freedesktop.ScreenSaver"><method name="Inhibit"><arg type="s" direction="in"/>
  <arg type="s" direction="in"/><arg type="u" direction="out"/></method></interface></node>"""


def answer(_connection, _sender, _path, _interface, method, arguments, call):
    print(method, arguments.unpack()[0], flush=True)
    call.return_value(GLib.Variant("(u)", (7,)))


def offer(connection, _name):
    for path in "/ScreenSaver", "/org/freedesktop/ScreenSaver":
        connection.register_object(path, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], answer, None, None)


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.ScreenSaver", Gio.BusNameOwnerFlags.NONE, offer, None, None)
GLib.MainLoop().run()
