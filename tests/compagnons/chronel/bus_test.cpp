// The window of Chronel on a private bus; started by bus_prive.py, and by nothing else.
#include "compagnons/chronel/fenetre_chronel.h"
#include "ui/bureau/texte_qt.h"

#include <QApplication>
#include <QDBusReply>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>
#include <iostream>

namespace orvalis {
namespace {

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class Essai {
  public:
    Essai() {
        fenetre.show();
        fenetre.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    }
    [[nodiscard]] QWidget* Boite(const char* nom) const {
        return fenetre.findChild<QWidget*>(QString::fromLatin1(nom));
    }
    [[nodiscard]] std::string Texte(const char* nom) const {
        return S(Boite(nom)->property("text").toString());
    }
    void Attendre(const char* nom, const std::string& texte) const {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Texte(nom).find(texte) != std::string::npos; }))
            << nom << " = " << Texte(nom) << ", not " << texte;
    }
    // C the switch stands on, A it can be used; A a time can be typed.
    [[nodiscard]] std::string Etats() const {
        return std::string(Boite("ChkReseau")->property("checked").toBool() ? "C" : "-") +
               (Boite("ChkReseau")->isEnabled() ? "A" : "-") +
               (Boite("TxtHeure")->isEnabled() ? "A" : "-");
    }
    static std::string Foyer() { return S(QApplication::focusWidget()->objectName()); }
    static void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(QApplication::focusWidget(), touche, avec);
    }
    void Taper(Qt::Key lettre, const char* texte) const {
        Touche(lettre, Qt::AltModifier);
        qobject_cast<QLineEdit*>(QApplication::focusWidget())->clear();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(texte));
        Touche(Qt::Key_Return);
    }

    std::chrono::sys_seconds maintenant = std::chrono::sys_days{2026y / 11 / 21} + 63015s;
    FenetreChronel fenetre{[this] { return maintenant; }};
};

// Asks the mock, beside the window.
QDBusMessage Demander(const QString& methode, const QVariantList& arguments = {}) {
    QDBusMessage message = MessageDemande(methode, arguments);
    if (methode != u"SetNTP"_s)
        message = QDBusMessage::createMethodCall(message.service(), message.path(),
                                                 u"org.orvalis.Essai"_s, methode);
    message.setArguments(arguments);
    message = QDBusConnection::connectToBus(QDBusConnection::SystemBus, u"essai"_s).call(message);
    EXPECT_EQ(message.type(), QDBusMessage::ReplyMessage);
    return message;
}

void Refuser(const QString& faute) {
    Demander(u"Refuser"_s, {QString(u"org.freedesktop.DBus.Error."_s + faute)});
}

TEST(SansBus, LHeureSeulement) {
    Essai essai;
    essai.Attendre("LabEtat", "D-Bus) est absent");
    EXPECT_EQ(essai.Etats(), "---");
    EXPECT_EQ(essai.Texte("LabHeure") + essai.Texte("LabHeureUtc"), "18:30:1517:30:15");
    EXPECT_EQ(essai.Texte("LabTitre"), "Heure de l'ordinateur (UTC+1)");
    EXPECT_EQ(essai.Texte("LabDate"), "Samedi 21 Novembre 2026");
}

TEST(SansService, EstDit) {
    Essai essai;
    essai.Attendre("LabEtat", "n'est pas installé");
    EXPECT_EQ(essai.Etats(), "---");
}

TEST(Service, ReseauPuisMain) {
    EXPECT_TRUE(MessageDemande({}, {}).isInteractiveAuthorizationAllowed());
    Essai essai;
    essai.Attendre("LabEtat", "l'horloge est à l'heure");
    EXPECT_EQ(essai.Etats(), "CA-");
    essai.Boite("ChkReseau")->setFocus();
    const auto basculer = [&](const std::string& pendant, const std::string& message,
                              const std::string& apres) {
        essai.Touche(Qt::Key_Return);
        EXPECT_EQ(essai.Etats(), pendant);
        essai.Attendre("LabMessage", "Demande faite au système");
        essai.Attendre("LabMessage", message);
        EXPECT_EQ(essai.Etats(), apres) << message;
        EXPECT_EQ(essai.Foyer(), "ChkReseau");
    };
    Refuser(u"AccessDenied"_s);
    basculer("C--", "permission n'a pas été donnée", "CA-");
    basculer("C--", "est coupée", "-AA");
    basculer("---", "est en marche", "CA-");
    basculer("C--", "est coupée", "-AA");

    // 2030-01-01 12:00 UTC; the date stays when its box is told that it is UTC.
    essai.Taper(Qt::Key_D, "01/01/2030");
    EXPECT_EQ(essai.Foyer(), "TxtHeure");
    essai.Touche(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return essai.Boite("ChkUtc")->property("checked").toBool(); }));
    essai.Taper(Qt::Key_H, "12h60");
    essai.Attendre("LabMessage", "Tapez l'heure ainsi");
    EXPECT_EQ(essai.Foyer(), "TxtHeure");
    Refuser(u"InteractiveAuthorizationRequired"_s);
    essai.Taper(Qt::Key_H, "12:00");
    EXPECT_EQ(essai.Etats(), "---");
    essai.Attendre("LabMessage", "agent d'authentification absent");
    EXPECT_EQ(essai.Foyer() + essai.Texte("TxtHeure"), "TxtHeure12:00");
    essai.Touche(Qt::Key_Return);
    essai.maintenant = std::chrono::sys_days{2030y / 1 / 2};
    essai.Attendre("LabMessage", "est réglée");
    EXPECT_EQ(essai.Texte("TxtDate") + essai.Texte("LabHeure"), "02/01/203001:00:00");
    EXPECT_EQ(essai.Foyer() + essai.Texte("TxtHeure"), "TxtHeure");
    const QDBusReply<qlonglong> ecart = Demander(u"Ecart"_s);
    EXPECT_EQ(ecart.value(), std::chrono::microseconds(1893499200s - 1795282215s).count());

    Demander(u"SetNTP"_s, {true, true}); // by another program
    EXPECT_TRUE(QTest::qWaitFor([&] { return essai.Etats() == "CA-"; }));
    essai.Touche(Qt::Key_Escape);
    EXPECT_FALSE(essai.fenetre.isVisible());
}

} // namespace
} // namespace orvalis

// Never on the bus of this computer: its clock would be set.
int main(int argc, char** argv) {
    const QByteArray prive = qgetenv("ORVALIS_BUS_PRIVE");
    if (prive.isEmpty() || prive != qgetenv("DBUS_SYSTEM_BUS_ADDRESS")) {
        std::cerr << "To be started by bus_prive.py, on a bus of its own.\n";
        return 2;
    }
    qputenv("TZ", "Europe/Paris");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
