#!/usr/bin/python3
"""A machine whose USB ports exist on paper only: sysfs, udev events and device nodes for programs that are started with
the environment that the first lines tell. Run under umockdev-wrapper. Orders come by standard input, one a line, each
answered with "ok" or "? what went wrong"; the end of the input ends it.

    plug NAME VENDOR PRODUCT PORT...   PORT is NODE:TERMINAL:ROLE, such as ttyUSB0:/dev/pts/4:primary;
                                       roles are primary, secondary, free and ignored
    unplug NAME
"""

import os
import shutil
import sys

import gi

gi.require_version("UMockdev", "1.0")
from gi.repository import GLib, UMockdev  # noqa: E402

ROLES = {
    "primary": ["ID_MM_PORT_TYPE_AT_PRIMARY", "1"],
    "secondary": ["ID_MM_PORT_TYPE_AT_SECONDARY", "1"],
    "ignored": ["ID_MM_PORT_IGNORE", "1"],
    "free": [],
}


class Machine:
    def __init__(self):
        self.testbed = UMockdev.Testbed.new()
        self.root = self.testbed.get_root_dir()
        self.pci = self.testbed.add_device("pci", "0000:00:14.0", None, ["class", "0x0c0330"], [])
        self.hub = self.testbed.add_device(
            "usb", "usb1", self.pci, ["idVendor", "1d6b", "idProduct", "0002", "busnum", "1", "devnum", "1"],
            ["DEVTYPE", "usb_device"])
        driver = os.path.join(self.root, "sys/bus/usb/drivers/option")
        os.makedirs(driver, exist_ok=True)
        self.plugged = {}

    def handle_ioctl(self, _base, client):
        # Terminals that are no serial hardware: what a client asks of one succeeds and does nothing.
        client.complete(0, 0)
        return True

    def plug(self, name, vendor, product, *ports):
        usb = self.testbed.add_device(
            "usb", name, self.hub,
            ["idVendor", vendor, "idProduct", product, "busnum", "1", "devnum", str(len(self.plugged) + 2),
             "manufacturer", "Linkhand Tests", "product", "Simulated Modem", "bDeviceClass", "00"],
            ["DEVTYPE", "usb_device", "ID_VENDOR_ID", vendor, "ID_MODEL_ID", product, "ID_BUS", "usb",
             "DRIVER", "usb"])
        devices = [usb]
        nodes = []
        # Clients look as soon as a port is announced: its node is there before.
        for number, port in enumerate(ports):
            node, terminal, role = port.rsplit(":", 2)
            link = os.path.join(self.root, "dev", node)
            os.makedirs(os.path.dirname(link), exist_ok=True)
            if os.path.lexists(link):
                os.unlink(link)
            os.symlink(terminal, link)
            handler = UMockdev.IoctlBase()
            handler.connect("handle-ioctl", self.handle_ioctl)
            self.testbed.attach_ioctl("/dev/" + node, handler)
            nodes.append((node, link, handler))
            devices += self.add_port(usb, name, vendor, product, number, node, role)
        self.plugged[name] = (devices, nodes)

    def add_port(self, usb, name, vendor, product, number, node, role):
        interface = self.testbed.add_device(
            "usb", "%s:1.%d" % (name, number), usb,
            ["bInterfaceNumber", "%02x" % number, "bInterfaceClass", "ff", "bInterfaceSubClass", "ff",
             "bInterfaceProtocol", "ff"],
            ["DEVTYPE", "usb_interface", "DRIVER", "option", "ID_USB_INTERFACE_NUM", "%02x" % number])
        self.testbed.set_attribute_link(interface, "driver", "../" * interface.count("/") + "bus/usb/drivers/option")
        serial = self.testbed.add_device("usb-serial", node, interface, [], ["DRIVER", "option1"])
        tty = self.testbed.add_device(
            "tty", node, serial, ["dev", "188:%d" % number],
            ["DEVNAME", "/dev/" + node, "MAJOR", "188", "MINOR", str(number), "ID_MM_CANDIDATE", "1", "ID_BUS", "usb",
             "ID_VENDOR_ID", vendor, "ID_MODEL_ID", product, "ID_USB_INTERFACE_NUM", "%02x" % number] + ROLES[role])
        return [interface, serial, tty]

    def unplug(self, name):
        devices, nodes = self.plugged.pop(name)
        for device in reversed(devices):
            self.testbed.uevent(device, "remove")
            self.testbed.remove_device(device)
        for node, link, _handler in nodes:
            self.testbed.detach_ioctl("/dev/" + node)
            if os.path.lexists(link):
                os.unlink(link)

    def obey(self, line):
        words = line.split()
        if words and words[0] in ("plug", "unplug"):
            getattr(self, words[0])(*words[1:])
            return "ok"
        return "? unknown order: " + line


def main():
    machine = Machine()
    loop = GLib.MainLoop()

    def on_input(source, _condition):
        line = source.readline()
        if not line:
            loop.quit()
            return False
        try:
            answer = machine.obey(line.strip())
        except Exception as error:  # the other side waits for an answer, whatever it is
            answer = "? %s" % error
        print(answer, flush=True)
        return True

    print(machine.root, flush=True)
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, on_input)
    try:
        loop.run()
    finally:
        shutil.rmtree(machine.root, ignore_errors=True)


if __name__ == "__main__":
    main()
