#include "qsl/banc_qsl.h"
#include "qsl/feuille_qsl.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

TEST(FeuilleQSL, MissingSheetIsMadeAndADamagedOneKeepsItsBytes) {
    const Banc neuf;
    FeuilleQSL creee;
    ChargerFeuilleQSL(creee, neuf.dossier);
    EXPECT_EQ(neuf.Feuille(), Libres(16));
    EXPECT_EQ(Etats(creee), "LLLLLLLLLLLLLLLL");

    const std::string f5abc = Etiquette("F5ABC", "21/11/26", "18:05", "7");
    const std::vector<std::pair<std::string, std::string>> cas = {
        {"", "PPPPPPPPPPPPPPPP"},
        {kLibre + kLibre.substr(0, 50), "LLPPPPPPPPPPPPPP"},
        {kLibre + "**", "LPPPPPPPPPPPPPPP"},
        {"  ***" + std::string(101, ' ') + Libres(15), "LLLLLLLLLLLLLLLL"},
        {std::string(106, ' ') + f5abc + Libres(14), "PPLLLLLLLLLLLLLL"},
        {std::string(106, '\0') + "****" + kLibre.substr(4) + Libres(14), "PPLLLLLLLLLLLLLL"},
        {Libres(16) + f5abc, "LLLLLLLLLLLLLLLL"},
    };
    for (const auto& [octets, etats] : cas) {
        const Banc banc;
        banc.Ecrire("FEUILLEqsl.TXT", octets);
        FeuilleQSL feuille;
        ChargerFeuilleQSL(feuille, banc.dossier);
        EXPECT_EQ(Etats(feuille), etats);
        EXPECT_EQ(banc.Lire("FEUILLEqsl.TXT"), octets);
        EXPECT_FALSE(std::filesystem::exists(banc.dossier / "FeuilleQSL.txt"));
    }
}

TEST(FeuilleQSL, ReadingAndWritingBackExchangesReportAndMode) {
    struct Cas {
        std::string route;
        VoieQSL voie;
        std::string manager;
    };
    const std::vector<Cas> cas = {{"BUREAU", VoieQSL::Bureau, ""},
                                  {"DIRECT", VoieQSL::Direct, ""},
                                  {"F6QSL", VoieQSL::Aucune, "F6QSL"},
                                  {"", VoieQSL::Aucune, ""}};
    const std::string debut = Octets({{"F5ABC", 15}, {"Bonne ann\351e", 15}, {"QRP", 15}});
    const std::string moment = Octets({{"21/11/26", 8}, {"18:05", 5}, {"14.250", 10}});
    for (const Cas& c : cas) {
        const std::string avant = Libres(2).append(debut).append(Octets({{c.route, 15}})) + moment;
        const Banc banc;
        banc.Ecrire("FeuilleQSL.txt", avant + Octets({{"59+20dB", 8}, {"SSB", 5}, {"7", 10}}));
        FeuilleQSL feuille;
        ChargerFeuilleQSL(feuille, banc.dossier);
        feuille.boites[kBoiteManager] = "reste";
        LireEtiquette(feuille, 3);
        EXPECT_EQ(feuille.boites,
                  (BoitesEtiquette{"", "F5ABC", "21/11/26", "18:05", "14.250", "59+20dB", "SSB",
                                   "Bonne année", "QRP", c.manager, "F5ABC", "7"}));
        EXPECT_EQ(feuille.voie, c.voie);
        EXPECT_EQ(feuille.vue.nrTag, "Etiquette N° 3");
        EcrireEtiquette(feuille, 3);
        EXPECT_EQ(banc.Feuille(), avant + Octets({{"SSB", 8}, {"59+20", 5}, {"7", 10}}));
    }
}

} // namespace
} // namespace orvalis
