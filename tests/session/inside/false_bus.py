"""A session's assistive technology that has bad intentions: it says that its bus is to be reached by starting a program.
false_bus.py PROGRAM"""

import sys

from gi.repository import Gio, GLib

INTERFACES = """<node>
  <interface name="org.a11y.Bus"><method name="GetAddress"><arg type="s" direction="out"/></method></interface>
  <interface name="org.a11y.Status">
    <property name="IsEnabled" type="b" access="read"/><property name="ScreenReaderEnabled" type="b" access="read"/>
  </interface>
</node>"""


def answer(connection, sender, path, interface, method, parameters, invocation):
    print("asked", flush=True)
    invocation.return_value(GLib.Variant("(s)", (f"unixexec:path={sys.argv[1]}",)))


def yes(connection, sender, path, interface, name):
    return GLib.Variant("b", True)


def offer(connection, name):
    for interface in Gio.DBusNodeInfo.new_for_xml(INTERFACES).interfaces:
        connection.register_object("/org/a11y/bus", interface, answer, yes)


Gio.bus_own_name(Gio.BusType.SESSION, "org.a11y.Bus", Gio.BusNameOwnerFlags.NONE, offer)
GLib.MainLoop().run()
