"""PackageKit over package lists of a test's own. Runs as the first process of private namespaces, in which it changes
nothing of the machine, and ends with them.

Usage: package_service.py DIRECTORY INSTALLED OFFERED, with versions of the package norvin-focus."""

import os
import shutil
import subprocess
import sys
import time

PACKAGE = """
Package: norvin-focus
Version: {version}
Architecture: amd64
Maintainer: Test <test@example.org>
Description: focused work
"""
BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>unix:path=/run/dbus/system_bus_socket</listen>
  <listen>unix:path={directory}/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


def write(path, text, mode="w"):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, mode, encoding="utf-8") as file:
        file.write(text)


def run(*arguments):
    subprocess.run(arguments, check=True, stdout=sys.stderr)


def wait_for_name(name):
    while "true" not in subprocess.run(
            ["gdbus", "call", "--system", "--dest", "org.freedesktop.DBus", "--object-path", "/", "--method",
             "org.freedesktop.DBus.NameHasOwner", name], capture_output=True, text=True, check=False).stdout:
        time.sleep(0.05)


def main():
    directory, installed, offered = sys.argv[1:]
    shutil.copytree("/var/lib/dpkg", f"{directory}/dpkg", symlinks=True)
    write(f"{directory}/dpkg/status", PACKAGE.format(version=installed) + "Status: install ok installed\n", "a")
    write(f"{directory}/dpkg/info/norvin-focus.list", "/.\n/usr\n/usr/bin\n/usr/bin/norvin-focus\n")
    write(f"{directory}/offers/Packages", PACKAGE.format(version=offered) + "Filename: ./norvin-focus.deb\nSize: 1\n"
          "SHA256: " + 64 * "0" + "\n")
    write(f"{directory}/apt/sources.list", f"deb [trusted=yes] file:{directory}/offers ./\n")
    for name in ("apt/sources.list.d", "apt/preferences.d", "apt/apt.conf.d", "apt/trusted.gpg.d",
                 "lists/lists/partial", "cache", "state", "downloads"):
        os.makedirs(f"{directory}/{name}", exist_ok=True)
    run("mount", "-t", "tmpfs", "tmpfs", "/run")
    os.mkdir("/run/dbus")
    for name, place in (("dpkg", "/var/lib/dpkg"), ("apt", "/etc/apt"), ("lists", "/var/lib/apt"),
                        ("cache", "/var/cache/apt"), ("state", "/var/lib/PackageKit"),
                        ("downloads", "/var/cache/PackageKit")):
        run("mount", "--bind", f"{directory}/{name}", place)
    run("apt-get", "update")

    write(f"{directory}/bus.conf", BUS.format(directory=directory))
    # What of the world outside the services would ask otherwise.
    for name in ("DBUS_SYSTEM_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS"):
        os.environ.pop(name, None)
    subprocess.Popen(["dbus-daemon", f"--config-file={directory}/bus.conf", "--nofork"])
    wait_for_name("org.freedesktop.DBus")
    # Nobody is asked for permission to read lists, so that no such service is needed.
    daemon = subprocess.Popen(["/usr/libexec/packagekitd"])
    wait_for_name("org.freedesktop.PackageKit")
    print("ready", flush=True)
    daemon.wait()


if __name__ == "__main__":
    main()
