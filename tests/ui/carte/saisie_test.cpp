// The card under entry and under correction: Enter, focus and mouse, box by box, and what is
// stored.
#include "ui/carte/decrire.h"
#include "ui/carte/entree_tenue.h"
#include "ui/carte/modification.h"

namespace orvalis::aides::saisie {

constexpr Instant kMaintenant{2026, 11, 21, 7, 5, 9};

// The station of the tests.
Station Nous() {
    return {{}, "F5AAA", "JN18AA"};
}

// A card whose boxes show what no rule shows, so that every text and colour that a rule sets is a
// change.
Carte CarteAutre() {
    Carte carte;
    for (BoiteMontree& montree : carte.boites)
        montree = {"avant", Couleur::Gris};
    carte.distance = carte.azimut = carte.departement = "avant";
    return carte;
}

// A contact with F5ABC under entry in real time, altered by words.
Carte Scene(const std::string& etat, std::string_view texte = "") {
    Carte c = CarteAutre();
    c.zones[Boite::Indicatif] = "F5ABC";
    c.saisie.EnSaisie = c.saisie.tempsReel = true;
    c.saisie.TexteSaisi = texte;
    const std::map<std::string, std::function<void()>> mots = {
        {"différé", [&c] { c.saisie.tempsReel = false; }},
        {"anonyme", [&c] { c.zones[Boite::Indicatif] = ""; }}, // no callsign
        {"fin", [&c] { c.zones[Boite::Indicatif] = "\\"; }},   // the callsign that ends a log
        {"commencé", [&c] { c.saisie.QsoCommence = true; }},
        {"date", [&c] { c.saisie.DerniereDate = "01/02/03"; }}, // remembered, as what follows
        {"fréquence", [&c] { c.saisie.DerniereFreq = "7.05"; }},
        {"mode", [&c] { c.saisie.DernierMode = "CW"; }},
        {"fiche", [&c] { c.saisie.EnSaisie = false; }}, // a card on show instead
        {"modification", [&c] { c.saisie.EnModification = true; }},
        {"comptée", [&c] { c.saisie.NbModifs = 1; }}};
    for (const std::string& mot : Couper(std::string(Rogner(etat)), " "))
        EXPECT_NO_THROW(mots.at(mot)()) << "no such state: " << mot;
    return c;
}

TEST(Saisie, EntreeBoiteParBoite) {
    const auto entree = [](const Carte& c, Boite boite, auto) {
        Reponse r = ValiderBoite(c, Nous(), boite, kMaintenant);
        if (r.carte.distance.starts_with("111.")) // a degree of latitude
            r.carte.distance = "111";
        return r;
    };
    Derouler(Scene, entree, R"(
 1 anonyme tape F6X : zone 1=F6X 2=21/11/26 3=07:05, boite 2=21/11/26 3=07:05, saisi 07:05,
 QsoCommence, ActiveRech, Annuler, foyer 5;
 1 différé tape " F6X " : zone 1=F6X, saisi F6X, QsoCommence, ActiveRech, Annuler, foyer 2;
 1 anonyme tape "" : boite 1=, foyer 1; 1 tape "  " : zone 1=, boite 1=, saisi ""; 1 tape \ : rien;
 1 anonyme tape " \ " : saisi \, foyer 1; 1 fiche tape " F6X" : rien;
 2 différé tape 01/05/02 : zone 2=01/05/02, boite 2=01/05/02, date 01/05/02, foyer 3;
 2 différé tape 01.05.02 : zone 2=01.05.02, boite 2=01.05.02, date 01.05.02, foyer 3;
 2 différé tape 31/04/02, 1/5/02, "" : rien; 2 différé date tape "" : zone 2=01/02/03;
 2 date tape "" : rien; 2 tape 01/05/02 : rien;
 3 différé tape 18:30 : zone 3=18:30, foyer 4; 3 différé tape 24:00 : saisi ""; 3 tape 18:30 : rien;
 4 différé tape 9:5// : zone 4=09:00, saisi 09:00, foyer 5; 4 différé tape 1830 : rien;
 4 tape 18:30 : rien; 5 tape 14.250 : zone 5=14.250, freq 14.250, foyer 6; 5 tape "" : boite 5=;
 5 fréquence tape "" : zone 5=7.05, foyer 6; 6 mode tape SSB : zone 6=SSB, mode SSB, foyer 7;
 6 mode tape "" : zone 6=CW, foyer 7; 6 tape " " : boite 6=, saisi "";
 7 tape "" : zone 7=59, foyer 8; 7 tape 57+5 : zone 7=57+5, foyer 8;
 8 tape "" : zone 8=59, QsoCommence, Suivant, foyer 12;
 8 anonyme tape 41 : zone 8=41, QsoCommence, Suivant, foyer 12; 8 fiche tape "" : rien;
 12 tape jean PIERRE : zone 12=Jean Pierre, foyer 9; 9 tape LYON : zone 9=LYON, foyer 11;
 11 tape "" : boite 11=, foyer 10; 11 tape 7 : zone 11=07, boite 11=07, saisi 07, dept Ardèche, foyer 10;
 11 tape 075 : zone 11=075, dept Ville-de-Paris, foyer 10; 10 tape "" : boite 10=, foyer 13;
 11 tape 99 : zone 11=99, dept "", foyer 10; 10 tape JN18A : zone 10=JN18A;
 10 tape JN19AA : zone 10=JN19AA, dist 111, azim 000°, foyer 13;
 10 tape JN18ZZ : saisi "", erreur 10, foyer 10;
 13 tape BONJOUR : zone 0=BONJOUR                        13=BONJOUR, foyer 14;
 14 tape X : zone 14=X, foyer 15; 15 tape "" : boite 15=, foyer 17;
 16 tape IN95AA : rien; 16 anonyme tape IN95AA : foyer 1;
 17 commencé tape F9XX : zone 0=               F9XX            17=F9XX, foyer BtEnrSuivant;
 17 tape "" : zone 0=                              , boite 17=, foyer 1;
 17 commencé anonyme tape "" : zone 0=                              , boite 17=, foyer 1)");
}

TEST(Saisie, InfoJointLesDernieresMoitiesValidees) {
    Carte carte = Scene("commencé");
    const auto valider = [&carte](Boite boite, std::string_view texte) {
        carte.saisie.TexteSaisi = texte;
        carte = ValiderBoite(carte, Nous(), boite, kMaintenant).carte;
        return carte.zones.info;
    };
    EXPECT_EQ(valider(Boite::Manager, "F9XX"), "               F9XX           ");
    EXPECT_EQ(valider(Boite::Remarque, "É2345678901234567"), "É23456789012345F9XX           ");
    carte = PreparerSaisie(carte, Nous(), NumeroFiche{4}).carte;
    EXPECT_EQ(carte.zones.info, "");
    EXPECT_EQ(valider(Boite::Remarque, "A"), "A              F9XX           ");
}

TEST(Saisie, PriseDuFoyer) {
    const auto prise = [](const Carte& c, Boite b, auto) { return PrendreFoyer(c, b); };
    Derouler(Scene, prise, R"(
 1 commencé anonyme tape x : vert 1, saisi ""; 9 commencé anonyme tape x : saisi "", foyer 1;
 9 anonyme tape x : vert 9, saisi ""; 9 commencé tape x : vert 9, saisi "";
 2 différé date tape x : boite 2=01/02/03, vert 2, saisi 01/02/03, choisi 2;
 2 date tape x : vert 2, saisi ""; 2 différé tape x : vert 2, saisi "";
 5 fréquence tape x : boite 5=7.05, vert 5, saisi 7.05, choisi 5;
 6 mode tape x : boite 6=CW, vert 6, saisi CW, choisi 6; 6 tape x : vert 6, saisi "";
 7 tape x : boite 7=59, vert 7, saisi 59, choisi 7;
 8 tape x : boite 8=59, vert 8, saisi 59, choisi 8; 8 fiche tape x : saisi avant;
 8 fiche modification comptée tape x : saisi avant)");
}

TEST(Saisie, PerteDuFoyer) {
    const auto perte = [](const Carte& c, Boite b, auto) { return QuitterFoyer(c, b); };
    Derouler(Scene, perte, R"(
 1 tape "" : boite 1=F5ABC, jaune 1, saisi F5ABC;
 1 fiche modification comptée tape "" : boite 1=F5ABC, rouge 1, saisi F5ABC;
 7 tape "" : boite 7=, repos 7, derniere 7; 7 fiche tape "" : boite 7=, repos 7, derniere 7;
 7 fiche modification comptée tape "" : boite 7=, rouge 7, derniere 7;
 7 fiche modification tape "" : boite 7=, repos 7, derniere 7;
 16 tape "" : boite 16=, repos 16, derniere 16)");
}

TEST(Saisie, PressionSurUneBoite) { // the texts are those that the boxes show
    const auto montrer = [](const std::string& etat, const std::string& texte) {
        Carte c = Scene(etat, "avant");
        c.boites.fill({texte, Couleur::Gris});
        return c;
    };
    const auto presser = [](const Carte& c, Boite b, auto) { return PresserBoite(c, b, true); };
    Derouler(montrer, presser, R"(
 5 tape 14.2 : vert 5, saisi "", choisi 5; 5 tape "  " : boite 5=, vert 5, saisi "";
 5 fiche tape 14.2 : rouge 5, saisi "", EnModification, choisi 5;
 5 fiche modification comptée tape 14.2 : rouge 5, saisi "", choisi 5;
 13 commencé anonyme tape x : foyer 1; 16 commencé anonyme tape x : derniere 16, Locator;
 16 tape JN18AA : vert 16, saisi "", derniere 16, Locator, choisi 16;
 16 fiche tape " " : boite 16=, rouge 16, saisi "", EnModification)");
    const auto refuser = [](const Carte& c, Boite b, auto) { return PresserBoite(c, b, false); };
    Derouler(montrer, refuser, "5 fiche tape 14.2 : rien");
}

TEST(Saisie, UneFicheViergePourLeContactSuivant) {
    Carte carte = Scene("commencé date fréquence mode fiche modification comptée", "reste");
    carte.zones.info = "vieux";
    carte.zones.textes.fill("vieux");
    EXPECT_EQ(PreparerSaisie(carte, Nous(), NumeroFiche{4}).carte.numero, " Charger fiche N° 4");
    const std::string vides = " 1= 2= 3= 4= 5= 6= 7= 8= 9= 10= 11= 12= 13= 14= 15= 16=JN18AA 17=, ";
    EXPECT_EQ(Decrire(carte, PreparerSaisie(carte, Nous(), NumeroFiche{4})),
              "zone 0=" + vides + "boite" + vides +
                  "repos 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17, saisi \"\", modifs 0, "
                  R"(sans QsoCommence, sans EnModification, dist "", azim "", dept "", foyer 1)");
}

TEST(Saisie, CeQuiEstEnregistreALaFin) {
    constexpr auto S = FinDeSaisie::Suivant, T = FinDeSaisie::Terminer;
    // State, button, whether BtEnrSuivant is enabled; the contact's end and own locator, callsign,
    // SLOC and MLOC of the end-of-log record.
    const std::tuple<const char*, FinDeSaisie, bool, const char*> cas[] = {
        {"commencé", S, true, R"(07:05|IN95AA|\||JN18AA)"},
        {"commencé", T, true, R"(07:05|JN05BB|\|JN18AA|JN05BB)"},
        {"commencé différé", S, true, R"(18:45|IN95AA|\||JN18AA)"},
        {"", S, true, "rien"},
        {"commencé", T, false, "rien"},
        {"commencé anonyme", S, true, "sans indicatif"},
        {"commencé anonyme", T, true, "sans indicatif"},
        {"commencé fin", S, true, "sans indicatif"}};
    for (const auto& [etat, bouton, actif, attendu] : cas) {
        Carte carte = Scene(etat);
        carte.zones[Boite::Fin] = "18:45";
        carte.zones[Boite::MonLocator] = "JN05BB";
        MontrerTexte(carte, Boite::MonLocator, "IN95AA");
        const ContactFini contact = FinirContact(carte, Nous(), bouton, actif, kMaintenant);
        const Zones fin = ZonesDeFiche(contact.fin);
        std::string dit = contact.zones[Boite::Fin] + '|' + contact.zones[Boite::MonLocator] + '|' +
                          fin[Boite::Indicatif] + '|' + fin[Boite::SonLocator] + '|' +
                          fin[Boite::MonLocator];
        if (contact.verdict != Verdict::Enregistrer)
            dit = contact.verdict == Verdict::RienAEcrire ? "rien" : "sans indicatif";
        EXPECT_EQ(dit, attendu) << etat;
    }
}

// A stored card under correction, its name and my QSL empty.
Carte Stockee(const std::string& /*etat*/ = "", std::string_view texte = "") {
    Carte c = CarteAutre();
    c.ficheCourante = NumeroFiche{12};
    c.tampon = Enregistrement("F5ABC          01/05/0218:3018:4514.25     SSB  59      59      "
                              "LYON                     JN15AA69                 "
                              "REM            MGR                    OK      JN18AA");
    c.zones = ZonesDeFiche(c.tampon);
    c.saisie.EnModification = true;
    c.saisie.TexteSaisi = texte;
    return c;
}

TEST(Modification, EntreeBoiteParBoite) {
    const auto entree = [](const Carte& c, Boite b, auto) {
        return ValiderBoite(c, Nous(), b, {});
    };
    Derouler(Stockee, entree, R"(
 1 tape "", \ : repos 1; 1 tape " F6X " : zone 1=F6X, saisi F6X, corrigé; 2 tape 1/5/02 : repos 2;
 2 tape 31/04/02 : boite 2=01/05/02, saisi 01/05/02, sans EnModification;
 2 tape 02/05/02 : zone 2=02/05/02, corrigé;
 3 tape 9:30 : boite 3=18:30, repos 3, saisi 18:30; 3 tape 24:00 : boite 3=18:30, saisi 18:30,
 sans EnModification;
 3 tape 9:5// : zone 3=09:00, saisi 09:00, corrigé; 4 tape "" : boite 4=18:45, repos 4, saisi 18:45;
 4 tape 19:00 : zone 4=19:00, corrigé; 5 tape "" : boite 5=14.25, repos 5, saisi 14.25;
 5 tape 7.05 : zone 5=7.05, corrigé; 6 tape " " : boite 6=SSB, repos 6, saisi SSB;
 6 tape CW : zone 6=CW, corrigé; 7 tape "" : boite 7=59, repos 7, saisi 59; 7 tape 57 : zone 7=57, corrigé;
 8 tape "" : boite 8=59, repos 8, saisi 59; 8 tape 44+ : zone 8=44+, corrigé; 9 tape "" : zone 9=, corrigé;
 9 tape PARIS : zone 9=PARIS, corrigé; 10 tape "" : boite 10=JN15AA, saisi JN15AA, sans EnModification;
 10 tape JN05BB : zone 10=JN05BB, corrigé; 10 tape JN05B : saisi "", erreur 10, foyer 10;
 11 tape "" : zone 11=, corrigé, dept ""; 11 tape 7 : zone 11=07, saisi 07, corrigé, dept "";
 11 tape 0 : zone 11=0, corrigé, dept ""; 11 tape 95 : zone 11=95, corrigé, dept "";
 11 tape 974 : zone 11=974, corrigé, dept ""; 11 tape 96, 970, 975 : boite 11=, repos 11, saisi "";
 12 tape "" : boite 12=, repos 12; 12 tape jean PIERRE : zone 12=Jean Pierre, saisi Jean Pierre,
 corrigé; 13 tape "" : zone 0=               MGR             13=, corrigé;
 13 tape BON : zone 0=BON            MGR             13=BON, corrigé;
 14 tape "" : boite 14=, repos 14; 14 tape Reçue : zone 14=Reçue, corrigé;
 15 tape "" : zone 15=, corrigé; 16 tape "" : repos 16; 16 tape IN95AA : zone 16=IN95AA, corrigé;
 16 tape ZZ95AA : saisi "", erreur 16, foyer 16;
 17 tape "" : zone 0=REM                            17=, corrigé;
 17 tape F9X : zone 0=REM            F9X             17=F9X, corrigé)");
}

TEST(Modification, LesChangementsSAccumulentJusquALaReponse) {
    Carte carte = ModifierZone(Stockee("", "7.05"), Boite::Frequence).carte;
    carte.saisie.EnModification = true;
    carte.saisie.TexteSaisi = "31/04/02"; // refused, but there is still a change to ask for
    EXPECT_EQ(Decrire(carte, ModifierZone(carte, Boite::Date)),
              "boite 2=01/05/02, saisi 01/05/02, sans EnModification, Question");
    carte.saisie.TexteSaisi = "CW";
    carte = ModifierZone(carte, Boite::Mode).carte;
    EXPECT_EQ(carte.saisie.NbModifs, 2);
    const std::string autres = "repos 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";
    EXPECT_EQ(Decrire(carte, RepondreOui(carte)), "repos 1" + autres.substr(5) + ", modifs 0");
    EXPECT_EQ(Decrire(carte, RepondreNon(carte)),
              "jaune 1, " + autres + " 17, modifs 0, dist \"\", azim \"\"");
    OublierModifications(carte.saisie);
    EXPECT_EQ(Decrire(carte, RepondreNon(carte)), "rien");
    EXPECT_EQ(QuestionEffacer(carte).numero + QuestionModifier(carte).indicatif, "12F5ABC");
}

// The key pressed (+), released (-), marked as repeated (r) or in another window (f), with its
// instants -> presses of its own.
TEST(Saisie, EntreeTenueOuPressee) {
    const auto appuis = [](const std::string& mouvements) {
        EntreeTenue touche;
        std::string propres;
        for (const std::string& mot : Couper(mouvements, " ")) {
            const bool appui = mot[0] == '+';
            SuivreEntree(touche, {appui, std::stoull(mot.substr(1)), mot.back() == 'r',
                                  mot.back() == 'f' ? 1U : 0U});
            if (appui)
                propres += touche.propre ? 'o' : '-';
        }
        return propres;
    };
    Verifier(appuis, Textes{{"+9 -80 +200 -280", "oo"},
                            {"+9 -509 +509 -539 +539 -560 +900", "o--o"}, // X11, unmarked
                            {"+9 -509r +509r -539 +539 -560 +561", "o--o"},
                            {"+9 +509r +539r -560 +900", "o--o"}, // without releases
                            {"+9 +509 +539 -560 +900", "o--o"},   // the same, unmarked
                            {"+9 +2000", "oo"},                   // released elsewhere
                            {"+9 +600f -650f +700f", "ooo"},      // released where it was blocked
                            {"+9 -509f +509f +539f", "o--"},      // held into another window
                            {"+0r -0 +0", "-o"},                  // no clock
                            {"+9 -10 +11 -12 +13", "ooo"},        // 2 ms a key
                            {"+9 -10 +10 -11 +11", "ooo"}});      // sent in one instant
}

TEST(Modification, NombreArrondiAuPair) {
    const auto nombre = [](std::string_view t) { return std::to_string(ArrondirNombre(t)); };
    EXPECT_EQ(
        Suite(nombre, R"(|2A|075|0.5|1.5|2.5|.6|1.49|-3|" 7"|A5|1.2.9|3-2|99999999999999999999)"),
        "0|2|75|0|2|2|1|1|-3|7|0|1|3|32767");
}

} // namespace orvalis::aides::saisie
