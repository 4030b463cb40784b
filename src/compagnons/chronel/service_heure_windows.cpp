#ifdef _WIN32

#include "compagnons/chronel/service_heure.h"

#include <QDesktopServices>
#include <QUrl>

namespace orvalis {

ServiceHeure::ServiceHeure(EtatService& etat, QObject* parent) : QObject(parent), etat_(etat) {}

ServiceHeure::~ServiceHeure() = default;

void ServiceHeure::Relire() {
    etat_.acces = Acces::Page;
    Q_EMIT Change();
}

void ServiceHeure::OuvrirPage() {
    const bool ouverte = QDesktopServices::openUrl(QUrl(QStringLiteral("ms-settings:dateandtime")));
    Repondre(etat_, ouverte ? std::string_view{} : "Le système n'a pas ouvert sa page de réglage.");
    Q_EMIT Change();
}

// Nothing offers these while the page is offered.
void ServiceHeure::MettreReseau(bool /*reseau*/) {}
void ServiceHeure::Regler(std::chrono::microseconds /*ecart*/) {}
void ServiceHeure::ProprietesChangees() {}

} // namespace orvalis

#endif
