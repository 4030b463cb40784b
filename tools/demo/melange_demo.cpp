// Shuffles the logbook of a sample drive after repeating it: orvalis_melange <drive> <number>. A
// sort of the outcome lasts long enough to be looked at. The same logbook comes out every time.
#include "core/dossier.h"
#include "core/fichier_fiches.h"
#include "core/parametres.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace orvalis;

int main(int nbArguments, char** arguments) try {
    if (nbArguments != 3) {
        std::fputs("usage: orvalis_melange <drive> <number of contacts>\n", stderr);
        return 2;
    }
    const std::filesystem::path dossier = DossierProgramme(arguments[1]);
    const Parametres parametres = LireParametres(TrouverParametres(dossier));
    FichierFiches cahier(TrouverFichier(dossier, parametres.nomFichier),
                         ModeFichier::LectureEcriture);
    std::vector<QsoRecord> modele(static_cast<std::size_t>(cahier.Compter()) + 1);
    static_cast<void>(cahier.Lire(kPremiereFiche, modele));
    const QsoRecord fin = modele.back();
    modele.pop_back();
    if (modele.empty())
        throw std::runtime_error("the logbook is empty");
    const auto nombre = static_cast<std::size_t>(std::atoi(arguments[2]));
    std::vector<QsoRecord> fiches;
    for (std::size_t i = 0; i < nombre; ++i)
        fiches.push_back(modele[i % modele.size()]);
    std::minstd_rand hasard; // NOLINT(cert-msc51-cpp): the same shuffle every time is wanted
    for (std::size_t i = fiches.size(); i > 1; --i)
        std::swap(fiches[i - 1], fiches[hasard() % i]);
    fiches.push_back(fin);
    cahier.Ecrire(kPremiereFiche, fiches);
    return 0;
} catch (const std::exception& erreur) {
    std::fprintf(stderr, "orvalis_melange: %s\n", erreur.what());
    return 1;
}
