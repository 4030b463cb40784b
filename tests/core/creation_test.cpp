// The files that the first run makes.
#include "aides.h"
#include "core/creation.h"

namespace orvalis {
namespace {

using namespace aides;

TEST(Creation, SelonLaLongueurDeLIndicatif) {
    const struct {
        std::size_t longueur;
        bool passe;
    } cas[] = {
        {0, false}, {1, false}, {2, true},   {3, true},   {4, true},  {5, true},  {6, true},
        {7, true},  {8, false}, {9, false},  {10, true},  {11, true}, {12, true}, {13, true},
        {14, true}, {15, true}, {16, false}, {17, false}, {18, true}, {19, true}, {20, true},
    };
    for (const char* lettre : {"F", "É"}) // characters count, not bytes
        for (const auto& [longueur, passe] : cas) {
            const Dossier lecteur;
            const std::string indicatif = Fois(static_cast<int>(longueur), lettre);
            EXPECT_EQ(CreerCahier(lecteur / "", {indicatif, "C.Vek", "JN18AA"}), passe)
                << indicatif;
            EXPECT_EQ(Lire(lecteur / "Orvalis/C.Vek"), passe ? Fin() : "") << indicatif;
            EXPECT_EQ(std::filesystem::exists(lecteur / "Orvalis/ParVel.cfg"), passe) << indicatif;
        }
}

} // namespace
} // namespace orvalis
