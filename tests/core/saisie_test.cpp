// The card under entry and under correction: Enter, focus and mouse, box by box, and what is
// stored.
#include "aides.h"
#include "core/modification.h"
#include "core/saisie.h"
#include "decrire.h"

namespace orvalis {
namespace {

using namespace aides;

constexpr Instant kMaintenant{2026, 11, 21, 7, 5, 9};

// A contact with F5ABC under entry in real time, altered by letters: d deferred, i no callsign,
// s dates and modes remembered, c begun, \ the callsign that ends a log; h a card on show instead,
// m that card under modification, n the same with a change counted, 0 no card, a another logbook.
Session Scene(std::string_view etat, std::string_view texte = "") {
    const auto a = [etat](char lettre) { return etat.find(lettre) != etat.npos; };
    Session s;
    s.monLocator = "JN18AA";
    s.nbFiches = 3;
    s.ficheCourante = a('0') ? 0 : 3;
    s.autreJournal = a('a') ? "F9ZZ" : "";
    s.zones[1] = a('i') ? "" : a('\\') ? "\\" : "F5ABC";
    s.saisie.EnSaisie = !a('h') && !a('m') && !a('n');
    s.saisie.EnModification = a('m') || a('n');
    s.saisie.NbModifs = a('n') ? 1 : 0;
    s.saisie.tempsReel = !a('d');
    s.saisie.QsoCommence = a('c');
    if (a('s')) {
        s.saisie.DerniereDate = "01/02/03";
        s.saisie.DerniereFreq = "7.05";
        s.saisie.DernierMode = "CW";
    }
    s.saisie.TexteSaisi = texte;
    return s;
}

TEST(Saisie, EntreeBoiteParBoite) {
    const auto entree = [](const Session& s, std::size_t boite, std::string_view) {
        Reponse r = ValiderBoite(s, boite, kMaintenant);
        if (r.labDist && r.labDist->starts_with("111.")) // a degree of latitude
            r.labDist = "111";
        return r;
    };
    Derouler(Scene, entree, R"(
 1 i 'F6X' z1=F6X z2=21/11/26 z3=07:05 t2=21/11/26 t3=07:05 +QsoCommence +ActiveRech +Annuler ->5;
 1 d ' F6X ' z1=F6X texte=F6X +QsoCommence +ActiveRech +Annuler ->2; 1 i '' ->1;
 1 '  ' z1= texte=; 1 '\'; 1 i ' \ ' texte=\ ->1; 1 h ' F6X';
 2 d '01/05/02' z2=01/05/02 t2=01/05/02 date=01/05/02 ->3;
 2 d '01.05.02' z2=01.05.02 t2=01.05.02 date=01.05.02 ->3; 2 d '31/04/02'; 2 d '1/5/02'; 2 d '';
 2 ds '' z2=01/02/03; 2 s ''; 2 '01/05/02'; 3 d '18:30' z3=18:30 ->4; 3 d '24:00' texte=; 3 '18:30';
 4 d '9:5//' z4=09:00 texte=09:00 ->5; 4 d '1830'; 4 '18:30';
 5 '14.250' z5=14.250 freq=14.250 ->6; 5 s '' z5=7.05 ->6; 5 '';
 6 s 'SSB' z6=SSB mode=SSB ->7; 6 s '' z6=CW ->7; 6 ' ' texte=;
 7 '' z7=59 ->8; 7 '57+5' z7=57+5 ->8;
 8 '' z8=59 +QsoCommence +Suivant ->12; 8 i '41' z8=41 +QsoCommence +Suivant ->12; 8 h '';
 12 'jean PIERRE' z12=Jean Pierre ->9; 9 'LYON' z9=LYON ->11;
 11 '' ->10; 11 '7' z11=07 t11=07 dept=Ardèche ->10; 11 '075' z11=075 dept=Ville-de-Paris ->10;
 11 '99' z11=99 dept= ->10;
 10 '' ->13; 10 'JN18A' z10=JN18A; 10 'JN19AA' z10=JN19AA dist=111 azim=000° ->13;
 10 'JN18ZZ' texte= ERREUR=10 ->10;
 13 'BONJOUR' z0=BONJOUR                        z13=BONJOUR ->14; 14 'X' z14=X ->15; 15 '' ->17;
 16 'IN95AA'; 16 i 'IN95AA' ->1; 17 c 'F9XX' z0=               F9XX            z17=F9XX ->18;
 17 '' z0=                               ->1; 17 ci '' z0=                               ->1;)");
}

TEST(Saisie, InfoJointLesDernieresMoitiesValidees) {
    Session session = Scene("c");
    const auto valider = [&session](std::size_t boite, std::string_view texte) {
        session.saisie.TexteSaisi = texte;
        Appliquer(session, ValiderBoite(session, boite, kMaintenant));
        return session.zones[kZoneInfo];
    };
    EXPECT_EQ(valider(17, "F9XX"), "               F9XX           ");
    EXPECT_EQ(valider(13, "É2345678901234567"), "É23456789012345F9XX           ");
    Appliquer(session, PreparerSaisie(session));
    EXPECT_EQ(session.zones[kZoneInfo], "");
    EXPECT_EQ(valider(13, "A"), "A              F9XX           ");
}

TEST(Saisie, PriseDuFoyer) {
    const auto prise = [](const Session& s, std::size_t boite, std::string_view) {
        return PrendreFoyer(s, boite);
    };
    Derouler(Scene, prise, R"(
 1 ci 'x' c1=5 texte=; 9 ci 'x' texte= ->1; 9 i 'x' c9=5 texte=; 9 c 'x' c9=5 texte=;
 2 ds 'x' t2=01/02/03 c2=5 texte=01/02/03 sel=2; 2 s 'x' c2=5 texte=; 2 d 'x' c2=5 texte=;
 5 s 'x' t5=7.05 c5=5 texte=7.05 sel=5; 6 s 'x' t6=CW c6=5 texte=CW sel=6; 6 'x' c6=5 texte=;
 7 'x' t7=59 c7=5 texte=59 sel=7; 8 'x' t8=59 c8=5 texte=59 sel=8; 8 h 'x'; 8 n 'x';)");
}

TEST(Saisie, PerteDuFoyer) {
    const auto perte = [](const Session& s, std::size_t boite, std::string_view) {
        return QuitterFoyer(s, boite);
    };
    Derouler(Scene, perte, R"(
 1 '' t1=F5ABC c1=3; 1 n '' t1=F5ABC c1=4;
 7 '' t7= c7=1 zone=7; 7 n '' t7= c7=4 zone=7; 7 h '' t7= c7=1 zone=7; 7 m '' t7= c7=1 zone=7;
 16 '' t16= c16=1 zone=16;)");
}

TEST(Saisie, PressionSurUneBoite) {
    const auto pression = [](const Session& s, std::size_t boite, std::string_view texte) {
        return PresserBoite(s, boite, texte);
    };
    const auto avant = [](std::string_view etat, auto) { return Scene(etat, "avant"); };
    Derouler(avant, pression, R"(
 5 '14.2' c5=5 texte= sel=5; 5 '  ' t5= c5=5 texte=;
 5 h '14.2' c5=4 texte= +EnModification sel=5; 5 n '14.2' c5=4 texte= sel=5; 5 h0 '14.2';
 5 ha '14.2';
 16 'JN18AA' c16=5 texte= zone=16 +Locator sel=16; 16 h '' t16= c16=4 texte= +EnModification;)");
}

TEST(Saisie, UneFicheViergePourLeContactSuivant) {
    Session session = Scene("cns", "reste");
    session.zones.fill("vieux");
    std::string attendu;
    for (const char* debut : {"z0", "t1", "c1"})
        for (int i = debut[1] - '0'; i <= 17; ++i)
            attendu += *debut + std::to_string(i) +
                       (*debut == 'c' ? "=1 "
                        : i == 16     ? "=JN18AA "
                                      : "= ");
    attendu += "texte= modifs=0 -QsoCommence -EnModification dist= azim= dept= ->1";
    EXPECT_EQ(Decrire(session, PreparerSaisie(session)), attendu);
}

TEST(Saisie, CeQuiEstEnregistreALaFin) {
    constexpr auto S = FinDeSaisie::Suivant, T = FinDeSaisie::Terminer;
    const struct {
        const char* etat;
        FinDeSaisie bouton;
        bool actif;
        Verdict verdict;
        std::string_view heureFin = {}, mloc = {};   // the contact's
        std::string_view slocFin = {}, mlocFin = {}; // the end-of-log record's
    } cas[] = {
        {"c", S, true, Verdict::Enregistrer, "07:05", "IN95AA", "", "JN18AA"},
        {"c", T, true, Verdict::Enregistrer, "07:05", "JN05BB", "JN18AA", "JN05BB"},
        {"cd", S, true, Verdict::Enregistrer, "18:45", "IN95AA", "", "JN18AA"},
        {"", S, true, Verdict::RienAEcrire},
        {"c", T, false, Verdict::RienAEcrire},
        {"ci", S, true, Verdict::IndicatifManquant},
        {"ci", T, true, Verdict::IndicatifManquant},
        {"c\\", S, true, Verdict::IndicatifManquant},
    };
    for (const auto& c : cas) {
        Session session = Scene(c.etat);
        session.zones[4] = "18:45";
        session.zones[16] = "JN05BB";
        const ContactFini contact = FinirContact(session, c.bouton, c.actif, "IN95AA", kMaintenant);
        EXPECT_EQ(contact.verdict, c.verdict);
        EXPECT_EQ(contact.zones[4], c.heureFin);
        EXPECT_EQ(contact.zones[16], c.mloc);
        EXPECT_TRUE(c.mloc.empty() ||
                    contact.fin ==
                        Enregistrement(Brute({{0, "\\"}, {89, c.slocFin}, {159, c.mlocFin}})))
            << c.etat;
    }
}

// A stored card under correction, its name and my QSL empty.
Session Carte(std::string_view /*etat*/ = "", std::string_view texte = "") {
    Session s;
    s.nbFiches = 12;
    s.ficheCourante = 12;
    s.monLocator = "JN18AA";
    s.tampon = Enregistrement("F5ABC          01/05/0218:3018:4514.25     SSB  59      59      "
                              "LYON                     JN15AA69                 "
                              "REM            MGR                    OK      JN18AA");
    s.zones = ZonesDeFiche(s.tampon);
    s.saisie.EnModification = true;
    s.saisie.TexteSaisi = texte;
    return s;
}

TEST(Modification, EntreeBoiteParBoite) {
    const auto entree = [](const Session& s, std::size_t boite, std::string_view) {
        return ValiderBoite(s, boite, {});
    };
    Derouler(Carte, entree, R"(
 1 '' c1=1; 1 '\' c1=1; 1 ' F6X ' z1=F6X texte=F6X * +Cadre;
 2 '1/5/02' c2=1; 2 '31/04/02' -EnModification; 2 '02/05/02' z2=02/05/02 * +Cadre;
 3 '9:30' t3=18:30 c3=1; 3 '24:00' -EnModification; 3 '9:5//' z3=09:00 * +Cadre;
 4 '' t4=18:45 c4=1; 4 '19:00' z4=19:00 * +Cadre; 5 '' t5=14.25 c5=1; 5 '7.05' z5=7.05 * +Cadre;
 6 ' ' t6=SSB c6=1 texte=; 6 'CW' z6=CW * +Cadre; 7 '' t7=59 c7=1; 7 '57' z7=57 * +Cadre;
 8 '' t8=59 c8=1; 8 '44+' z8=44+ * +Cadre; 9 '' z9= * +Cadre; 9 'PARIS' z9=PARIS * +Cadre;
 10 '' -EnModification; 10 'JN05BB' z10=JN05BB * +Cadre; 10 'JN05B' texte= ERREUR=10 ->10;
 11 '' z11= * +Cadre dept=; 11 '7' z11=07 texte=07 * +Cadre dept=; 11 '0' z11=0 * +Cadre dept=;
 11 '95' z11=95 * +Cadre dept=; 11 '96' t11= c11=1 texte=; 11 '970' t11= c11=1 texte=;
 11 '974' z11=974 * +Cadre dept=; 11 '975' t11= c11=1 texte=;
 12 '' t12= c12=1; 12 'jean PIERRE' z12=Jean Pierre texte=Jean Pierre * +Cadre;
 13 '' z0=               MGR             z13= * +Cadre;
 13 'BON' z0=BON            MGR             z13=BON * +Cadre;
 14 '' t14= c14=1; 14 'Reçue' z14=Reçue * +Cadre; 15 '' z15= * +Cadre;
 16 '' c16=1; 16 'IN95AA' z16=IN95AA * +Cadre; 16 'ZZ95AA' texte= ERREUR=16 ->16;
 17 '' z0=REM                            z17= * +Cadre;
 17 'F9X' z0=REM            F9X             z17=F9X * +Cadre;)");
}

TEST(Modification, LesChangementsSAccumulentJusquALaReponse) {
    Session session = Carte("", "7.05");
    Appliquer(session, ValiderBoite(session, 5, {}));
    session.saisie.EnModification = true;
    session.saisie.TexteSaisi = "31/04/02"; // refused, but the frame still has a change to ask for
    EXPECT_EQ(Decrire(session, ValiderBoite(session, 2, {})), "-EnModification +Cadre");
    session.saisie.TexteSaisi = "CW";
    Appliquer(session, ValiderBoite(session, 6, {}));
    EXPECT_EQ(session.saisie.NbModifs, 2);
    const std::string repos =
        " c2=1 c3=1 c4=1 c5=1 c6=1 c7=1 c8=1 c9=1 c10=1 c11=1 c12=1 c13=1 c14=1 c15=1 c16=1";
    EXPECT_EQ(Decrire(session, RepondreOui(session)), "c1=1" + repos + " modifs=0");
    EXPECT_EQ(Decrire(session, RepondreNon(session)),
              "c1=3" + repos + " c17=1 modifs=0 dist= azim=");
    OublierModifications(session.saisie);
    EXPECT_EQ(Decrire(session, RepondreNon(session)), "");
    EXPECT_EQ(CadreEffacer(session).numero + CadreModifier(session).indicatif, "12F5ABC");
}

TEST(Modification, NombreArrondiAuPair) {
    const auto nombre = [](std::string_view t) { return std::to_string(ArrondirNombre(t)); };
    EXPECT_EQ(Suite(nombre, "|2A|075|0.5|1.5|2.5|.6|1.49|-3| 7|A5|1.2.9|3-2|99999999999999999999"),
              "0|2|75|0|2|2|1|1|-3|7|0|1|3|32767");
}

} // namespace
} // namespace orvalis
