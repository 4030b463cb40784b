// Sorts a logbook as the window does, without one: `orvalis_tri <logbook>`. For comparing the bytes
// and the time of two systems.
#include "core/cahier.h"
#include "core/chemins.h"
#include "maint/tri.h"

#include <chrono>
#include <iostream>

int main(int argc, char** argv) {
    using namespace orvalis;
    if (argc != 2)
        return 2;
    try {
        Cahier cahier;
        OuvrirCahier(cahier, CheminTexte(argv[1]));
        CompterFiches(cahier);
        const auto debut = std::chrono::steady_clock::now();
        Tri tri(cahier);
        while (!tri.Etat().termine)
            tri.Avancer(100'000);
        const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
        std::cout << tri.Etat().pas << " steps, " << tri.Etat().echanges << " exchanges, "
                  << duree.count() << " s\n";
    } catch (const std::exception& erreur) {
        std::cerr << erreur.what() << "\n";
        return 1;
    }
    return 0;
}
