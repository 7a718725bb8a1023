"""Stands in for the desktop's settings service on the session's bus."""

import subprocess
import sys

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
XML = f"""
<node>
  <interface name="{INTERFACE}">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged">
      <arg type="s"/><arg type="s"/><arg type="v"/>
    </signal>
  </interface>
</node>
"""
SPACE, KEY = "org.gnome.desktop.interface", "enable-animations"


def serve():
    """Answers for a desktop without animations; each line of the input turns them over."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    moving = [False]

    def answer(_bus, _sender, _path, _interface, _method, arguments, call):
        if tuple(arguments) == (SPACE, KEY):
            inner = GLib.Variant("v", GLib.Variant("b", moving[0]))
            call.return_value(GLib.Variant.new_tuple(GLib.Variant("v", inner)))
        else:
            call.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")

    def turn_over(source, _condition):
        if not source.readline():
            loop.quit()
            return False
        moving[0] = not moving[0]
        news = GLib.Variant("(ssv)", (SPACE, KEY, GLib.Variant("b", moving[0])))
        bus.emit_signal(None, PATH, INTERFACE, "SettingChanged", news)
        return True

    bus.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(XML).interfaces[0], answer, None, None)
    Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
    GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, turn_over)
    loop = GLib.MainLoop()
    print("ready", flush=True)
    loop.run()


class SettingsService:
    """Runs the service in a process of its own as long as the block lasts."""

    def __enter__(self):
        self.process = subprocess.Popen(
            [sys.executable, __file__], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        assert self.process.stdout.readline() == "ready\n"
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait(5)

    def turn_over(self):
        self.process.stdin.write("\n")
        self.process.stdin.flush()


if __name__ == "__main__":
    serve()
