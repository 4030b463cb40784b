#!/usr/bin/python3
"""Runs a test program against system buses that are its own: none, an empty one, and one on which a
mock of the service keeps the time. The time and the settings of this computer are out of its reach.

usage: bus_prive.py <program>
       bus_prive.py --service <command>     anything else beside the mock, as a look at the window

Run by the Python that the packages of the system belong to.
"""
import os
import subprocess
import sys

import dbusmock

SERVICE = "org.freedesktop.timedate1"
ESSAI = "org.orvalis.Essai"
# What the template leaves out: refusals, the question for a permission, the network that has the
# upper hand.
REFUS = """
def refuser(nom):
    raise dbus.exceptions.DBusException("in English", name=nom)
refus = getattr(self, "refus", "")
self.refus = ""
if refus:
    refuser(refus)
if not args[-1]:
    refuser("org.freedesktop.DBus.Error.InteractiveAuthorizationRequired")
"""
REGLER = REFUS + f"""
if self.Get("{SERVICE}", "NTP"):
    refuser("org.freedesktop.timedate1.AutomaticTimeSyncEnabled")
self.ecart = args[0] if args[1] else 0
"""
RESEAU = REFUS + f"""
self.Set("{SERVICE}", "NTP", args[0])
"""


METHODES = ((SERVICE, "SetTime", "xbb", "", REGLER), (SERVICE, "SetNTP", "bb", "", RESEAU),
            (ESSAI, "Refuser", "s", "", "self.refus = args[0]"),
            (ESSAI, "Ecart", "", "x", "ret = self.ecart"))
Bus = dbusmock.DBusTestCase


def essayer(filtre):
    prive = os.environ["DBUS_SYSTEM_BUS_ADDRESS"]
    return subprocess.run([sys.argv[1], "--gtest_filter=" + filtre], timeout=120,
                          env={**os.environ, "ORVALIS_BUS_PRIVE": prive}).returncode


def avec_service(reseau, suite):
    serveur, objet = Bus.spawn_server_template("timedated", {"NTP": reseau},
                                               stdout=subprocess.DEVNULL)
    try:
        for interface, *methode in METHODES:
            objet.AddMethod(interface, *methode, dbus_interface=dbusmock.MOCK_IFACE)
        return suite()
    finally:
        serveur.terminate()
        serveur.wait()


fautes = 0
fenetre = sys.argv[1] == "--service"
if not fenetre:
    os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=/nonexistent/bus"
    fautes += essayer("SansBus.*")
Bus.setUpClass()
Bus.start_system_bus()
try:
    if fenetre:
        fautes += avec_service(False, lambda: subprocess.run(sys.argv[2:]).returncode)
    else:
        fautes += essayer("SansService.*")
        fautes += avec_service(True, lambda: essayer("Service.*"))
finally:
    Bus.tearDownClass()
sys.exit(1 if fautes else 0)
