#include "aides.h"
#include "core/saisie.h"
#include "decrire.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

using essai::Decrire;

constexpr Instant kMaintenant{2026, 11, 21, 7, 5, 9};

using Preparation = void (*)(Session&);

void Rien(Session& /*s*/) {}
void Differe(Session& s) {
    s.saisie.tempsReel = false;
}
void SansIndicatif(Session& s) {
    s.zones[1].clear();
}
void Souvenirs(Session& s) {
    s.saisie.DerniereDate = "01/02/03";
    s.saisie.DerniereFreq = "7.05";
    s.saisie.DernierMode = "CW";
}
void DiffereAvecSouvenirs(Session& s) {
    Differe(s);
    Souvenirs(s);
}
void Commence(Session& s) {
    s.saisie.QsoCommence = true;
}
void CommenceSansIndicatif(Session& s) {
    Commence(s);
    SansIndicatif(s);
}
void HorsSaisie(Session& s) {
    s.saisie.EnSaisie = false;
}
void Corrige(Session& s) {
    HorsSaisie(s);
    s.saisie.EnModification = true;
    s.saisie.NbModifs = 1;
}

// A contact with F5ABC under entry in real time, made ready by `preparer`.
struct Scene {
    explicit Scene(Preparation preparer, std::string_view texte = "") {
        session.monLocator = "JN18AA";
        session.nbFiches = session.ficheCourante = 3;
        session.zones[1] = "F5ABC";
        session.saisie.EnSaisie = true;
        preparer(session);
        session.saisie.TexteSaisi = texte;
    }
    Session session;
};

struct Cas {
    std::size_t boite;
    Preparation preparer;
    std::string_view texte;
    std::string_view attendu;
};

TEST(Saisie, EntreeBoiteParBoite) {
    const Cas table[] = {
        // callsign
        {1, SansIndicatif, "F6X",
         "z1=F6X z2=21/11/26 z3=07:05 t2=21/11/26 t3=07:05 +QsoCommence "
         "+ActiveRech +Annuler ->5"},
        {1, Differe, " F6X ", "z1=F6X texte=F6X +QsoCommence +ActiveRech +Annuler ->2"},
        {1, SansIndicatif, "", "->1"},
        {1, Rien, "  ", "z1= texte="},
        {1, Rien, "\\", ""},
        {1, SansIndicatif, " \\ ", "texte=\\ ->1"},
        // date
        {2, Differe, "01/05/02", "z2=01/05/02 t2=01/05/02 date=01/05/02 ->3"},
        {2, Differe, "01.05.02", "z2=01.05.02 t2=01.05.02 date=01.05.02 ->3"},
        {2, Differe, "31/04/02", ""},
        {2, Differe, "1/5/02", ""},
        {2, Differe, "", ""},
        {2, DiffereAvecSouvenirs, "", "z2=01/02/03"},
        {2, Rien, "01/05/02", ""},
        // times
        {3, Differe, "18:30", "z3=18:30 ->4"},
        {4, Differe, "9:5//", "z4=09:00 texte=09:00 ->5"},
        {3, Differe, "24:00", "texte="},
        {4, Differe, "1830", ""},
        {3, Rien, "18:30", ""},
        {4, Rien, "18:30", ""},
        // frequency and mode
        {5, Rien, "14.250", "z5=14.250 freq=14.250 ->6"},
        {5, Souvenirs, "", "z5=7.05 ->6"},
        {5, Rien, "", ""},
        {6, Souvenirs, "SSB", "z6=SSB mode=SSB ->7"},
        {6, Souvenirs, "", "z6=CW ->7"},
        {6, Rien, " ", "texte="},
        // reports
        {7, Rien, "", "z7=59 ->8"},
        {7, Rien, "57+5", "z7=57+5 ->8"},
        {8, Rien, "", "z8=59 +QsoCommence +Suivant ->12"},
        {8, SansIndicatif, "41", "z8=41 +QsoCommence +Suivant ->12"},
        // name, town, department
        {12, Rien, "jean PIERRE", "z12=Jean Pierre ->9"},
        {9, Rien, "LYON", "z9=LYON ->11"},
        {11, Rien, "", "->10"},
        {11, Rien, "7", "z11=07 t11=07 dept=Ardèche ->10"},
        {11, Rien, "075", "z11=075 dept=Ville-de-Paris ->10"},
        {11, Rien, "99", "z11=99 dept= ->10"},
        // locator; 111.3 km to a degree of latitude, due North
        {10, Rien, "", "->13"},
        {10, Rien, "JN18A", "z10=JN18A"},
        {10, Rien, "JN19AA", "z10=JN19AA dist= azim=000° ->13"},
        {10, Rien, "JN18ZZ", "texte= ERREUR=10 ->10"},
        // the two halves of INFO
        {13, Rien, "BONJOUR", "z0=BONJOUR                        z13=BONJOUR ->14"},
        {14, Rien, "X", "z14=X ->15"},
        {15, Rien, "", "->17"},
        {16, Rien, "IN95AA", ""},
        {16, SansIndicatif, "IN95AA", "->1"},
        {17, Commence, "F9XX", "z0=               F9XX            z17=F9XX ->18"},
        {17, Rien, "", "z0=                               ->1"},
        {17, CommenceSansIndicatif, "", "z0=                               ->1"},
        // neither entry nor modification
        {1, HorsSaisie, " F6X", ""},
        {8, HorsSaisie, "", ""},
    };
    for (const Cas& c : table) {
        const Scene scene(c.preparer, c.texte);
        std::string dit = Decrire(scene.session, ValiderBoite(scene.session, c.boite, kMaintenant));
        if (const auto ici = dit.find("dist=111."); ici != std::string::npos)
            dit.erase(ici + 5, 10);
        EXPECT_EQ(dit, c.attendu) << "box " << c.boite << " text " << c.texte;
    }
}

TEST(Saisie, InfoJointLesDernieresMoitiesValidees) {
    Scene scene(Commence);
    const auto valider = [&scene](std::size_t boite, std::string_view texte) {
        scene.session.saisie.TexteSaisi = texte;
        Appliquer(scene.session, ValiderBoite(scene.session, boite, kMaintenant));
        return scene.session.zones[kZoneInfo];
    };
    EXPECT_EQ(valider(17, "F9XX"), "               F9XX           ");
    EXPECT_EQ(valider(13, "É2345678901234567"), "É23456789012345F9XX           ");
    Appliquer(scene.session, PreparerSaisie(scene.session));
    EXPECT_EQ(scene.session.zones[kZoneInfo], "");
    EXPECT_EQ(valider(13, "A"), "A              F9XX           ");
}

TEST(Saisie, OrdreDUneSaisieEntiere) {
    const struct {
        Preparation mode;
        std::vector<std::size_t> ordre;
    } cas[] = {
        {Rien, {1, 5, 6, 7, 8, 12, 9, 11, 10, 13, 14, 15, 17, kFoyerSuivant}},
        {Differe, {1, 2, 3, 4, 5, 6, 7, 8, 12, 9, 11, 10, 13, 14, 15, 17, kFoyerSuivant}},
    };
    const std::array<std::string_view, 18> textes = {
        "", "F6X", "01/05/02", "18:30", "18:45", "7.05", "CW", "", "",
        "", "",    "",         "",      "",      "",     "",   "", ""};
    for (const auto& c : cas) {
        Scene scene(c.mode);
        Appliquer(scene.session, PreparerSaisie(scene.session));
        std::vector<std::size_t> ordre;
        for (std::size_t boite = 1; boite != kFoyerInchange;) {
            ordre.push_back(boite);
            if (boite == kFoyerSuivant)
                break;
            scene.session.saisie.TexteSaisi = textes[boite];
            const Reponse r = ValiderBoite(scene.session, boite, kMaintenant);
            Appliquer(scene.session, r);
            boite = r.foyer;
        }
        EXPECT_EQ(ordre, c.ordre);
    }
}

TEST(Saisie, PriseDuFoyer) {
    const Cas table[] = {
        {1, CommenceSansIndicatif, "x", "c1=5 texte="},
        {9, CommenceSansIndicatif, "x", "texte= ->1"},
        {9, SansIndicatif, "x", "c9=5 texte="},
        {9, Commence, "x", "c9=5 texte="},
        {2, DiffereAvecSouvenirs, "x", "t2=01/02/03 c2=5 texte=01/02/03 sel=2"},
        {2, Souvenirs, "x", "c2=5 texte="},
        {2, Differe, "x", "c2=5 texte="},
        {5, Souvenirs, "x", "t5=7.05 c5=5 texte=7.05 sel=5"},
        {6, Souvenirs, "x", "t6=CW c6=5 texte=CW sel=6"},
        {6, Rien, "x", "c6=5 texte="},
        {7, Rien, "x", "t7=59 c7=5 texte=59 sel=7"},
        {8, Rien, "x", "t8=59 c8=5 texte=59 sel=8"},
        {8, HorsSaisie, "x", ""},
        {8, Corrige, "x", ""},
    };
    for (const Cas& c : table) {
        const Scene scene(c.preparer, c.texte);
        EXPECT_EQ(Decrire(scene.session, PrendreFoyer(scene.session, c.boite)), c.attendu)
            << c.boite;
    }
}

TEST(Saisie, PerteDuFoyer) {
    const Cas table[] = {
        {1, Rien, "", "t1=F5ABC c1=3"},
        {7, Rien, "", "t7= c7=1 zone=7"},
        {16, Rien, "", "c16=1 zone=16"},
        {7, Corrige, "", "t7= c7=4 zone=7"},
        {1, Corrige, "", "t1=F5ABC c1=4"},
        {7, HorsSaisie, "", "t7= c7=1 zone=7"},
        {7,
         [](Session& s) {
             Corrige(s);
             s.saisie.NbModifs = 0;
         },
         "", "t7= c7=1 zone=7"},
    };
    for (const Cas& c : table) {
        const Scene scene(c.preparer, c.texte);
        EXPECT_EQ(Decrire(scene.session, QuitterFoyer(scene.session, c.boite)), c.attendu)
            << c.boite;
    }
}

TEST(Saisie, PressionSurUneBoite) {
    const Cas table[] = {
        // the text is that of the box
        {5, Rien, "14.2", "c5=5 texte= sel=5"},
        {5, Rien, "  ", "t5= c5=5 texte="},
        {16, Rien, "JN18AA", "c16=5 texte= zone=16 +Locator sel=16"},
        {5, HorsSaisie, "14.2", "c5=4 texte= +EnModification sel=5"},
        {16, HorsSaisie, "", "t16= c16=4 texte= +EnModification"},
        {5, Corrige, "14.2", "c5=4 texte= sel=5"},
        {5,
         [](Session& s) {
             HorsSaisie(s);
             s.ficheCourante = 0;
         },
         "14.2", ""},
        {5,
         [](Session& s) {
             HorsSaisie(s);
             s.autreJournal = "F9ZZ";
         },
         "14.2", ""},
    };
    for (const Cas& c : table) {
        const Scene scene(c.preparer, "avant");
        EXPECT_EQ(Decrire(scene.session, PresserBoite(scene.session, c.boite, c.texte)), c.attendu)
            << c.boite;
    }
}

TEST(Saisie, UneFicheViergePourLeContactSuivant) {
    Scene scene(Souvenirs, "reste");
    scene.session.zones.fill("vieux");
    scene.session.saisie.QsoCommence = scene.session.saisie.EnModification = true;
    scene.session.saisie.NbModifs = 2;
    std::ostringstream attendu;
    for (int i = 0; i <= 17; ++i)
        attendu << 'z' << i << (i == 16 ? "=JN18AA " : "= ");
    for (int i = 1; i <= 17; ++i)
        attendu << 't' << i << (i == 16 ? "=JN18AA " : "= ");
    for (int i = 1; i <= 17; ++i)
        attendu << 'c' << i << "=1 ";
    attendu << "texte= modifs=0 -QsoCommence -EnModification dist= azim= dept= ->1";
    EXPECT_EQ(Decrire(scene.session, PreparerSaisie(scene.session)), attendu.str());
}

TEST(Saisie, CeQuiEstEnregistreALaFin) {
    const auto fin = [](std::string_view sloc, std::string_view mloc) {
        return essai::Brute({{0, "\\"}, {89, sloc}, {159, mloc}});
    };
    const struct {
        Preparation preparer;
        FinDeSaisie bouton;
        bool actif;
        Verdict verdict;
        std::string_view heureFin, monLocator;
        std::string fin;
    } table[] = {
        {Commence, FinDeSaisie::Suivant, true, Verdict::Enregistrer, "07:05", "IN95AA",
         fin("", "JN18AA")},
        {Commence, FinDeSaisie::Terminer, true, Verdict::Enregistrer, "07:05", "JN05BB",
         fin("JN18AA", "JN05BB")},
        {[](Session& s) {
             Commence(s);
             Differe(s);
         },
         FinDeSaisie::Suivant, true, Verdict::Enregistrer, "18:45", "IN95AA", fin("", "JN18AA")},
        {Rien, FinDeSaisie::Suivant, true, Verdict::RienAEcrire, "", "", ""},
        {Commence, FinDeSaisie::Terminer, false, Verdict::RienAEcrire, "", "", ""},
        {CommenceSansIndicatif, FinDeSaisie::Suivant, true, Verdict::IndicatifManquant, "", "", ""},
        {CommenceSansIndicatif, FinDeSaisie::Terminer, true, Verdict::IndicatifManquant, "", "",
         ""},
        {[](Session& s) {
             Commence(s);
             s.zones[1] = "\\";
         },
         FinDeSaisie::Suivant, true, Verdict::IndicatifManquant, "", "", ""},
    };
    for (const auto& c : table) {
        Scene scene(c.preparer);
        scene.session.zones[4] = "18:45";
        scene.session.zones[16] = "JN05BB";
        const ContactFini contact =
            FinirContact(scene.session, c.bouton, c.actif, "IN95AA", kMaintenant);
        EXPECT_EQ(contact.verdict, c.verdict);
        EXPECT_EQ(contact.zones[4], c.heureFin);
        EXPECT_EQ(contact.zones[16], c.monLocator);
        if (c.verdict == Verdict::Enregistrer) {
            EXPECT_EQ(contact.zones[1], "F5ABC");
            EXPECT_EQ(std::string(contact.fin.octets.begin(), contact.fin.octets.end()), c.fin);
        }
    }
}

TEST(Saisie, Fonds) {
    EXPECT_FALSE(FondDe(Couleur::Repos).has_value());
    EXPECT_EQ(FondDe(Couleur::JauneClair), (Rvb{255, 255, 192}));
    EXPECT_EQ(FondDe(Couleur::RougeClair), (Rvb{255, 192, 192}));
    EXPECT_EQ(FondDe(Couleur::VertClair), (Rvb{192, 255, 192}));
}

} // namespace
} // namespace orvalis
