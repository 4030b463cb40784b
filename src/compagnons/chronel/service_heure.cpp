#ifndef _WIN32

#include "compagnons/chronel/service_heure.h"

#include "ui/bureau/texte_qt.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include <limits>
#include <utility>

namespace orvalis {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kApresReponse = 2s;
constexpr auto kConnexion = "chronel";
constexpr auto kService = "org.freedesktop.timedate1";
constexpr auto kObjet = "/org/freedesktop/timedate1";
constexpr auto kProprietes = "org.freedesktop.DBus.Properties";

QString L(const char* latin) {
    return QString::fromLatin1(latin);
}

std::string PhraseDe(const QDBusError& erreur) {
    return DireFaute(S(erreur.name()), S(erreur.message()));
}

} // namespace

QDBusMessage MessageDemande(const QString& methode, const QVariantList& arguments) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(L(kService), L(kObjet), L(kService), methode);
    message.setArguments(arguments);
    message.setInteractiveAuthorizationAllowed(true);
    return message;
}

ServiceHeure::ServiceHeure(EtatService& etat, QObject* parent)
    : QObject(parent), etat_(etat), bus_(L(kConnexion)) {}

ServiceHeure::~ServiceHeure() {
    QDBusConnection::disconnectFromBus(L(kConnexion));
}

// A connection of our own can be made anew when the bus has gone and come back.
void ServiceHeure::Brancher() {
    QDBusConnection::disconnectFromBus(L(kConnexion));
    bus_ = QDBusConnection::connectToBus(QDBusConnection::SystemBus, L(kConnexion));
    if (bus_.isConnected())
        bus_.connect(L(kService), L(kObjet), L(kProprietes), QStringLiteral("PropertiesChanged"),
                     this, SLOT(ProprietesChangees()));
}

void ServiceHeure::ProprietesChangees() {
    Relire();
}

void ServiceHeure::Relire() {
    if (lecture_) {
        encore_ = true;
        return;
    }
    if (!bus_.isConnected())
        Brancher();
    if (!bus_.isConnected()) {
        etat_.acces = Acces::SansBus;
        Q_EMIT Change();
        return;
    }
    QDBusMessage question = QDBusMessage::createMethodCall(L(kService), L(kObjet), L(kProprietes),
                                                           QStringLiteral("GetAll"));
    question << L(kService);
    lecture_ = true;
    auto* attente = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(attente, &QDBusPendingCallWatcher::finished, this, [this, attente] {
        attente->deleteLater();
        lecture_ = false;
        Apprendre(*attente);
        Q_EMIT Change();
        if (std::exchange(encore_, false))
            Relire();
    });
}

void ServiceHeure::Apprendre(const QDBusPendingCall& reponse) {
    const QDBusPendingReply<QVariantMap> lues = reponse;
    if (lues.isError()) {
        etat_.acces = bus_.isConnected() ? Acces::Refus : Acces::SansBus;
        etat_.refus = PhraseDe(lues.error());
        return;
    }
    const QVariantMap proprietes = lues.value();
    const auto vraie = [&](const char* nom) { return proprietes.value(L(nom)).toBool(); };
    etat_.acces = Acces::Etabli;
    etat_.peutReseau = vraie("CanNTP");
    etat_.reseau = vraie("NTP");
    etat_.synchronise = vraie("NTPSynchronized");
}

void ServiceHeure::MettreReseau(bool reseau) {
    Envoyer(reseau ? Demande::MettreReseau : Demande::CouperReseau,
            MessageDemande(QStringLiteral("SetNTP"), {reseau, true}));
}

void ServiceHeure::Regler(std::chrono::microseconds ecart) {
    Envoyer(Demande::Regler, MessageDemande(QStringLiteral("SetTime"),
                                            {static_cast<qlonglong>(ecart.count()), true, true}));
}

void ServiceHeure::OuvrirPage() {
    // The service is all there is.
}

void ServiceHeure::Envoyer(Demande demande, const QDBusMessage& message) {
    // The operator may take as long as it pleases to find the password.
    constexpr int kSansLimite = std::numeric_limits<int>::max();
    if (!Demander(etat_, demande))
        return;
    auto* attente = new QDBusPendingCallWatcher(bus_.asyncCall(message, kSansLimite), this);
    connect(attente, &QDBusPendingCallWatcher::finished, this, [this, attente] {
        attente->deleteLater();
        Repondre(etat_, attente->isError() ? PhraseDe(attente->error()) : std::string());
        Q_EMIT Change();
        Q_EMIT Repondu();
        // What has just been switched still says otherwise for a moment.
        QTimer::singleShot(etat_.echec ? 0ms : kApresReponse, this, &ServiceHeure::Relire);
    });
    Q_EMIT Change();
}

} // namespace orvalis

#endif
