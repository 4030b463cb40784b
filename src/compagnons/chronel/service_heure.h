// The service of the system that keeps the time (org.freedesktop.timedate1), on the system bus; on
// Windows the page of the system's settings (service_heure_windows.cpp).
#pragma once

#include "compagnons/chronel/regles/etat_service.h"

#include <QObject>
#ifndef _WIN32
#include <QDBusConnection>
#include <QDBusMessage>
#endif

#include <chrono>

class QDBusPendingCall;

namespace orvalis {

#ifndef _WIN32
/// What is asked of the service's own interface; the system may put its question to the operator.
[[nodiscard]] QDBusMessage MessageDemande(const QString& methode, const QVariantList& arguments);
#endif

class ServiceHeure : public QObject {
    Q_OBJECT
  public:
    /// Keeps `etat`, which its owner shows.
    explicit ServiceHeure(EtatService& etat, QObject* parent = nullptr);
    ~ServiceHeure() override;

    /// Asks how things stand; a bus that was not there may be there now.
    void Relire();
    void MettreReseau(bool reseau);
    /// Moves the clock by `ecart`. It is a difference that is asked for, and not a time: however
    /// long the question of the permission stands there, none of that is lost.
    void Regler(std::chrono::microseconds ecart);
    /// Opens the page that sets the clock, where there is one.
    void OuvrirPage();

  Q_SIGNALS:
    /// The state is no longer what it was.
    void Change();
    /// The last demand has been answered.
    void Repondu();

  private Q_SLOTS:
    void ProprietesChangees();

  private:
    EtatService& etat_;
#ifndef _WIN32
    void Brancher();
    void Apprendre(const QDBusPendingCall& reponse);
    void Envoyer(Demande demande, const QDBusMessage& message);

    QDBusConnection bus_;
    bool lecture_ = false; ///< asked how things stand, not answered yet
    bool encore_ = false;  ///< and to be asked again after that
#endif
};

} // namespace orvalis
