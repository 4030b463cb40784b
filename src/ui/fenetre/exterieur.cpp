#include "ui/fenetre/exterieur.h"

#include "print/imprimante.h"

namespace orvalis {

void Exterieur::Pause(int secondes) {
    dehors_([&] { systeme_.Pause(secondes); });
}

void Exterieur::Informer(QWidget* parent, const QString& titre, const QString& texte) {
    dehors_([&] { systeme_.Informer(parent, titre, texte); });
}

void Exterieur::Avertir(QWidget* parent, const QString& texte) {
    dehors_([&] { systeme_.Avertir(parent, texte); });
}

QString Exterieur::ChoisirFichier(QWidget* parent, const DemandeFichier& demande) {
    QString chemin;
    dehors_([&] { chemin = systeme_.ChoisirFichier(parent, demande); });
    return chemin;
}

std::unique_ptr<Imprimante> Exterieur::PreparerImpression(QWidget* parent) {
    std::unique_ptr<Imprimante> imprimante;
    dehors_([&] { imprimante = systeme_.PreparerImpression(parent); });
    return imprimante;
}

void Exterieur::ConfigurerImprimante(QWidget* parent) {
    dehors_([&] { systeme_.ConfigurerImprimante(parent); });
}

void Exterieur::Quitter(int code) {
    dehors_([&] { systeme_.Quitter(code); });
}

} // namespace orvalis
