// The label sheet and the life of a label, against the bytes of both files.

#include "aides.h"
#include "qsl/contact_etiquette.h"
#include "qsl/vie_etiquette.h"

namespace orvalis::aides::etiquettes {

const std::string kLibre = Brute({{0, "***"}}, 106);

// Contacts like "F18h" or "F18h J", with commas between them: a callsign, an hour, and the sent
// QSL, "E" for "En cours", which goes to the offset `fin`. "anonyme" has neither callsign nor hour.
std::string Fiches(const std::string& liste, std::size_t date = 15, std::size_t fin = 143,
                   std::size_t taille = kTailleFiche) {
    std::string octets;
    for (const std::string& mots : Couper(liste, ",")) {
        const std::string debut = mots.starts_with("anonyme") ? "   " : mots.substr(0, 3);
        const std::string moment = "21/11/26" + debut.substr(1),
                          mot = mots.substr(std::min(mots.size(), (mots + ' ').find(' ') + 1)),
                          marque = mot == "E" ? "En cours" : mot;
        octets += Brute({{0, debut.substr(0, 1)}, {date, moment}, {fin, marque}}, taille);
    }
    return octets;
}

// Labels likewise, with the number of their contact at the end: "F18h 2".
std::string Etiquettes(const std::string& liste) {
    return Fiches(liste, 60, 96, 106);
}

// A sheet whose other places are free.
std::string Feuille(std::string premieres) {
    while (premieres.size() < std::size_t{16} * 106)
        premieres += kLibre;
    return premieres;
}

// A program folder with a logbook and a label sheet.
struct ServiceQSL {
    Dossier dossier;
    Cahier cahier;
    FeuilleQSL feuille;

    ServiceQSL(const std::string& fiches, const std::string& etiquettes) {
        cahier = Ouvrir(dossier.Poser("F5ABC.Vek", fiches + Fin()));
        dossier.Poser("feuilleQSL.TXT", etiquettes);
        dossier.Poser("feuilleQSL.TXT.tmp", Fois(20, kLibre)); // of a creation that was cut
        ChargerFeuilleQSL(feuille, dossier / "");
    }
    [[nodiscard]] std::string OctetsFeuille() const { return Lire(feuille.chemin); }

    // Another program puts a label on a place of the sheet; or without one, removes the sheet.
    void ChangerDehors(int place, const std::string& etiquette) const {
        std::string octets = OctetsFeuille();
        std::filesystem::remove(feuille.chemin);
        if (!etiquette.empty())
            dossier.Poser("feuilleQSL.TXT",
                          octets.replace(static_cast<std::size_t>(place - 1) * 106, 106,
                                         Etiquettes(etiquette)));
    }

    // Gestures with semicolons between them, a place or contact number behind some, and a text
    // behind `boite` and `dehors`. Returns in words what is on show then, and NrTag between quotes;
    // after "dit" what a message is about, and the first word behind each of its colons.
    std::string Faire(const std::string& gestes) {
        ReponseQSL r;
        Cahier& c = cahier;
        FeuilleQSL& f = feuille;
        std::string texte;
        const std::map<std::string, std::function<void(int)>> actions = {
            {"fiche", [&](int k) { r = PreparerEtiquette(c, f, NumeroFiche{k}).reponse; }},
            {"choix", [&](int k) { CliquerChoix(f, Place{k}); }},
            {"tag", [&](int k) { CliquerTag(f, Place{k}); }},
            {"boite", [&](int k) { SaisirBoiteEtiquette(f, static_cast<std::size_t>(k), texte); }},
            {"entree", [&](int) { EntrerBoiteEtiquette(f); }},
            {"direct", [&](int) { ChoisirVoie(f, VoieQSL::Direct); }},
            {"valider", [&](int) { r = ValiderEtiquette(c, f); }},
            {"supprimer", [&](int) { r = SupprimerEtiquette(c, f); }},
            {"laisser", [&](int) { LaisserEtiquette(f); }},
            {"restaurer", [&](int) { RestaurerFeuille(f); }},
            {"imprimer",
             [&](int) {
                 r = AutoriserImpression(c, f, "F5ABC");
                 if (r.fait)
                     DemanderControle(f);
             }},
            {"montrer", [&](int) { r = MontrerFeuille(f); }},
            {"charger", [&](int) { ChargerFeuilleQSL(f, dossier / ""); }},
            {"dehors", [&](int k) { ChangerDehors(k, texte); }},
            {"parfait", [&](int) { r = ToutEstParfait(c, f, "J"); }},
            {"autre", [&](int) { c.autre = "AUTRE"; }}, // another logbook on show
        };
        for (const std::string& geste : Couper(gestes, ";")) {
            const auto mots = Couper(geste, " ");
            texte = mots.size() > 2 ? mots[2] : "";
            EXPECT_NO_THROW(actions.at(mots[0])(mots.size() > 1 ? std::stoi(mots[1]) : 0)) << geste;
        }
        const VueFeuille& v = f.vue;
        const auto noms =
            Couper("panneau valider supprimer laisser quitter imprimer restaurer controle", " ");
        const bool visibles[] = {v.panneau, v.valider,  v.supprimer, v.laisser,
                                 v.quitter, v.imprimer, v.restaurer, v.controle};
        std::string vus;
        for (std::size_t i = 0; i < noms.size(); ++i)
            vus += visibles[i] ? noms[i] + ' ' : "";
        vus += '"' + v.nrTag + '"';
        for (const std::string& ligne : Couper(r.message, "\n")) {
            const auto parties = Couper(ligne, "\u00A0: ");
            vus += " dit " + parties[0];
            for (std::size_t i = 1; i < parties.size(); ++i)
                vus += ' ' + parties[i].substr(0, parties[i].find(' '));
        }
        for (const std::string& mot :
             {std::string("Etiquette N"), " «\u00A0" + f.chemin.string() + "\u00A0» "})
            for (std::size_t p = 0; (p = vus.find(mot)) != vus.npos;)
                vus.erase(p, mot.size() - 1);
        return vus;
    }
};

// Contacts | labels | gestures, `gestes` if there are none -> contacts | labels | what Faire says;
// that alone when contacts and labels stay as they were. All say `dit` beside.
void Essayer(const std::string& gestes, const std::string& table, const std::string& dit = "") {
    for (const auto& [nom, avant, apres] : Etapes(table)) {
        SCOPED_TRACE(nom);
        const auto depart = Couper(avant + '|' + gestes, "|");
        auto fin = Couper(apres, "|");
        if (fin.size() == 1)
            fin.insert(fin.begin(), depart.begin(), depart.begin() + 2);
        ServiceQSL service(Fiches(depart.at(0)), Feuille(Etiquettes(depart.at(1))));
        EXPECT_EQ(service.Faire(depart.at(2)), fin.at(2) + dit);
        EXPECT_EQ(Lire(service.cahier.chemin), Fiches(fin[0]) + Fin());
        EXPECT_EQ(service.OctetsFeuille(), Feuille(Etiquettes(fin[1])));
    }
}

TEST(FeuilleQSL, UneFeuilleAbimeeGardeSesOctets) {
    const std::pair<std::string, std::size_t> cas[] = {
        // a sheet, and its places that are not free
        {"", 0}, // set up
        {kLibre + kLibre.substr(0, 50), 14},
        {kLibre + "**", 15},
        {Feuille(Brute({{2, "***"}}, 106)), 0},
        {Feuille(std::string(106, ' ') + Etiquettes("F18h")), 2},
        {Feuille(std::string(106, '\0') + "****" + kLibre.substr(4)), 2},
        {Feuille("") + Etiquettes("F18h"), 0}};
    for (const auto& [octets, attendu] : cas) {
        const ServiceQSL service("", octets);
        EXPECT_EQ(EtiquettesAImprimer(service.feuille).size(), attendu);
        EXPECT_EQ(service.OctetsFeuille(), octets.empty() ? Feuille("") : octets);
        EXPECT_EQ(service.feuille.boites[kBoiteIndicatif], octets.empty() ? "***" : "");
#ifndef _WIN32
        EXPECT_FALSE(std::filesystem::exists(service.dossier / "FeuilleQSL.txt"));
#endif
    }
}

TEST(FeuilleQSL, UneEtiquetteRelueEchangeReportEtMode) {
    const Textes cas = {{"BUREAU", "B"}, {"DIRECT", "D"}, {"F6QSL", "-F6QSL"}, {"", "-"}};
    for (const auto& [champ, voie] : cas) {
        const std::string_view debut = "F5ABC          Bonne ann\351e    QRP",
                               suite = "21/11/2618:0514.250    59+20dB SSB  7";
        ServiceQSL service("", Brute({{0, debut}, {45, champ}, {60, suite}}, 106));
        BoitesEtiquette& boites = service.feuille.boites;
        boites[kBoiteManager] = "reste";
        LireEtiquette(service.feuille, kPremierePlace);
        EXPECT_EQ("-BD"[static_cast<int>(service.feuille.voie)] + boites[kBoiteManager], voie);
        ChoisirVoie(service.feuille, VoieQSL::Direct); // a route needs no manager
        EXPECT_EQ(boites, (BoitesEtiquette{"", "F5ABC", "21/11/26", "18:05", "14.250", "59+20dB",
                                           "SSB", "Bonne année", "QRP", "", "F5ABC", "7"}));
    }
}

TEST(FluxEtiquettes, PlacerUneEtiquette) {
    Essayer("", R"(
 placed : F18h | Z01h | fiche 1; entree; valider
     -> F18h E | Z01h, F18h 1 | valider quitter imprimer "N° 2"
 blank : F18h | | fiche 1; boite 1 " "; entree; valider
     -> panneau valider quitter " Indicatif manquant ! "
 free : F18h | | fiche 1; boite 1 " *** "; entree; valider
     -> panneau quitter " Indicatif manquant ! "
 review : F18h | Z01h | fiche 1; choix 1; entree; valider
     -> panneau valider supprimer laisser imprimer " Etiquette déjà placée ! "
 review left : F18h | Z01h | fiche 1; choix 1; laisser -> panneau quitter imprimer "N° 2"
 withdrawn in review : F18h | Z01h | fiche 1; choix 1; choix 2; choix 2; choix 3
     -> panneau supprimer laisser imprimer restaurer "N° 1"
 restored in review : F18h | Z01h | fiche 1; choix 2; choix 1; restaurer
     -> panneau supprimer laisser imprimer "N° 1"
 loaded again : F18h | Z01h | fiche 1; choix 2; choix 1; entree; charger -> quitter ""
 by hand : F18h | | tag 1; boite 1 F; boite 2 21/11/26; boite 3 18; valider
     -> F18h E | F18h | quitter imprimer "N° 1"
 by hand, dated : F18h J | | tag 1; boite 1 F; boite 2 21/11/26; boite 3 18; valider
     -> F18h J | F18h | quitter imprimer "N° 1" dit N° 1 (F 21/11/26 18) la
 another callsign : F18h | | fiche 1; boite 1 P; valider
     -> F18h E | P18h 1 | quitter imprimer "N° 1"
 of a twin : F18h, F09h | | fiche 1; boite 3 09; valider
     -> F18h, F09h E | F09h 1 | quitter imprimer "N° 1"
 numbered, dated : F18h J | | tag 1; boite 1 F; boite 2 21/11/26; boite 3 09; boite 11 1; valider
     -> F18h J | F09h 1 | quitter imprimer "N° 1" dit N° 1 (F 21/11/26 09) aucune
 elsewhere : F18h | | fiche 1; autre; valider -> panneau quitter " Consultation seule ! "
 dated : F18h J | | fiche 1 -> quitter ""
 another logbook : F18h | | autre; fiche 1 -> quitter "")");
}

TEST(FluxEtiquettes, ContactDUneEtiquetteImprimee) {
    Essayer("", R"(
 two : A17h E, F18h | A17h 1 | fiche 2; valider; imprimer; parfait
     -> A17h J, F18h J | | quitter "N° 2"
 not printed : F18h E | F18h 1 | parfait -> quitter ""
 checked : F18h E | F18h 1 | imprimer; choix 1; tag 1; supprimer; restaurer -> quitter controle ""
 review elsewhere : F18h E | F18h 1 | choix 1; autre; supprimer
     -> supprimer laisser "N° 1" dit Ce cahier est ouvert en consultation les
 elsewhere : F18h E | F18h 1 | imprimer; autre; parfait
     -> quitter imprimer "" dit Ce cahier est ouvert en consultation les
 print elsewhere : F18h E | F18h 1 | autre; imprimer
     -> quitter "" dit Un autre cahier est ouvert avant
 erased, no mark : F18h | F18h | montrer; choix 1; supprimer -> F18h | | panneau quitter "N° 1"
 erased twins : F18h, F18h | F18h | choix 1; supprimer -> F18h, F18h | | quitter "N° 1"
 erased, dated : F18h J | F18h | choix 1; supprimer
     -> F18h J | | quitter "N° 1" dit N° 1 (F 21/11/26 18) la)");
    // The number may be stale, the contact corrected, or without its mark.
    Essayer("imprimer; parfait", R"(
 number : A17h E, F18h E | F18h 2 -> A17h E, F18h J | | quitter ""
 callsign : A17h E, F09h E | F18h 2 -> A17h E, F09h J | | quitter ""
 hour : A17h E, P18h E | F18h 2 -> A17h E, P18h J | | quitter ""
 stale number : A17h E, F18h E | F18h 1 -> A17h E, F18h J | | quitter ""
 no number : A17h E, F18h E | F18h -> A17h E, F18h J | | quitter ""
 number too high : A17h E, F18h E | F18h 3 -> A17h E, F18h J | | quitter ""
 a word : A17h E, F18h E | F18h deux -> A17h E, F18h J | | quitter ""
 other mark : A17h E, F18h X | F18h 2 -> A17h E, F18h X | | quitter "" dit N° 1 (F 21/11/26 18) la
 other hour : A17h E, F16h E | F18h 1
     -> A17h E, F16h E | | quitter "" dit N° 1 (F 21/11/26 18) aucune
 corrected and dated : F16h X | F18h 1 -> F16h X | | quitter "" dit N° 1 (F 21/11/26 18) aucune
 renamed and dated : P18h X | F18h 1 -> P18h X | | quitter "" dit N° 1 (F 21/11/26 18) la
 corrected, no mark : F16h | F18h 1 -> F16h | | quitter "" dit N° 1 (F 21/11/26 18) aucune
 twins : A17h E, F18h E, F18h E | F18h 1 -> A17h E, F18h E, F18h E | | quitter ""
     dit N° 1 (F 21/11/26 18) plusieurs
 two labels : A17h E, F18h E | F18h 2, F18h 1
     -> A17h E, F18h J | | quitter "" dit N° 2 (F 21/11/26 18) sa
 two of one number : A17h E, F18h E | F18h 2, F18h 2
     -> A17h E, F18h J | | quitter "" dit N° 2 (F 21/11/26 18) sa
 two stale labels : F18h E | F18h 8, F18h 9 -> F18h J | | quitter "" dit N° 2 (F 21/11/26 18) sa
 twins, another hour : F18h E, F18h E | F18h 8, F09h 1
     -> F18h E, F18h E | | quitter "" dit N° 1 (F 21/11/26 18) plusieurs
     dit N° 2 (F 21/11/26 09) aucune
 two of nobody's : A17h X | F18h 1, P17h 2
     -> A17h X | | quitter "" dit N° 1 (F 21/11/26 18) aucune dit N° 2 (P 21/11/26 17) aucune
 no mark : A17h E, F18h | F18h 2 -> A17h E, F18h J | | quitter ""
 no mark, stale number : F18h, A17h E | F18h 2 -> F18h J, A17h E | | quitter ""
 no mark, a twin has it : F18h, F18h E | F18h 1 -> F18h, F18h J | | quitter ""
 no mark, two stale labels : F18h | F18h 8, F18h 9
     -> F18h J | | quitter "" dit N° 2 (F 21/11/26 18) sa
 no mark, another label's twin : F18h E, F18h | F18h 1, F18h 8 -> F18h J, F18h J | | quitter ""
 no mark, numbered : F18h, F18h | F18h 2 -> F18h, F18h J | | quitter ""
 no mark, twins : F18h, F18h | F18h 8
     -> F18h, F18h | | quitter "" dit N° 1 (F 21/11/26 18) plusieurs
 numbered : A17h E, F18h E, F18h E | F18h 3 -> A17h E, F18h E, F18h J | | quitter ""
 a blank label is nobody's : anonyme E, F18h E | anonyme 1, F18h
     -> anonyme E, F18h J | | quitter "" dit N° 1 (21/11/26) aucune)");
}

// What another program does to the sheet is seen before a place is touched.
#ifndef _WIN32 // where a name is free only once nobody has the file open
TEST(FluxEtiquettes, UneFeuilleChangeeDehorsEstMontreeEtDite) {
    Essayer("", R"(
 opened : F18h | | dehors 1 Z01h; montrer -> F18h | Z01h | panneau quitter imprimer "N° 2"
 from the card : F18h | | dehors 1 F18h; fiche 1 -> F18h E | F18h | quitter imprimer "N° 2"
 placed : F18h | | fiche 1; choix 2; entree; dehors 1 Z01h; valider
     -> F18h | Z01h | panneau valider quitter imprimer "N° 2"
 erased : F18h E | F18h 1 | choix 1; dehors 2 Z01h; supprimer
     -> F18h E | F18h 1, Z01h | quitter imprimer "N° 3"
 printed : F18h E | F18h 1 | dehors 2 Z01h; imprimer
     -> F18h E | F18h 1, Z01h | quitter imprimer "N° 3")",
            " dit La feuille d'étiquettes a été changée par un autre programme la");
    Essayer("", R"(
 placed at last : F18h | | fiche 1; dehors 1 Z01h; valider; valider
     -> F18h E | Z01h, F18h 1 | quitter imprimer "N° 2"
 another label : F18h E | F18h 1, A17h | imprimer; dehors 1 F16h; parfait
     -> F18h E | F16h, A17h | quitter imprimer "N° 3"
     dit La feuille d'étiquettes a été changée par un autre programme la F. les
 removed : F18h E | F18h 1, Z01h | imprimer; dehors; parfait
     -> F18h E | | quitter "N° 1" dit La feuille d'étiquettes avait disparu en F, les
 removed, all free : F18h | | fiche 1; dehors; valider
     -> panneau quitter "N° 1" dit La feuille d'étiquettes avait disparu en
 removed, placed : F18h | Z01h | fiche 1; dehors; valider; valider
     -> F18h E | F18h 1 | quitter imprimer "N° 1")");
    ServiceQSL service(Fiches("F18h E"), Feuille(Etiquettes("F18h 1")));
    service.Faire("imprimer; dehors 2 Z01h");
    EXPECT_THAT(ToutEstParfait(service.cahier, service.feuille, "J").message,
                testing::EndsWith("telle qu'elle est. Aucune fiche n'a été marquée\u00A0: les "
                                  "étiquettes imprimées restent à contrôler."));
    EXPECT_EQ(Lire(service.cahier.chemin), Fiches("F18h E") + Fin());
}
#endif

// The program was killed after the label was written, before its contact was marked.
TEST(FluxEtiquettes, UnContactSansMarqueRecoitSaSeuleMarque) {
    Essayer("", R"(
 its label : F18h | A17h, F18h 1 | fiche 1 -> F18h E | A17h, F18h 1 | quitter ""
 by callsign : F18h | A17h, F18h 8 | fiche 1 -> F18h E | A17h, F18h 8 | quitter ""
 by number : F18h | A17h, P18h 1 | fiche 1 -> F18h E | A17h, P18h 1 | quitter ""
 twins : F18h, F18h | F18h 8 | fiche 2 -> F18h, F18h E | F18h 8 | quitter ""
 its twin's : F18h, F18h | F18h 2 | fiche 1 -> panneau quitter imprimer "N° 2"
 other hour : F18h | A17h, F16h 1 | fiche 1 -> panneau quitter imprimer "N° 3"
 no hour : F | A17h, P   1 | fiche 1 -> panneau quitter imprimer "N° 3"
 neither : F18h | A17h, P18h 8 | fiche 1 -> panneau quitter imprimer "N° 3"
 another contact's : F18h E, F18h | F18h 1 | fiche 2 -> panneau quitter imprimer "N° 2")");
    ServiceQSL service(Fiches("F18h"), Feuille(Etiquettes("F18h 1")));
    const ReponseClic clic = PreparerEtiquette(service.cahier, service.feuille, kPremiereFiche);
    EXPECT_EQ(clic.suite, SuiteClic::Retabli);
    EXPECT_TRUE(clic.reponse.marque);
}

#ifndef _WIN32 // where no other program can write into an open logbook
TEST(FluxEtiquettes, UnContactChangeDepuisLaRechercheResteTelQuel) {
    ServiceQSL service(Fiches("F18h E"), "");
    QslSlotRecord cherchee;
    Etiquettes("F18h 1").copy(cherchee.octets.data(), cherchee.octets.size());
    const ContactTrouve trouve = TrouverContacts(service.cahier, {&cherchee, 1}).front();
    service.dossier.Poser("F5ABC.Vek", Fiches("P18h E") + Fin());
    EXPECT_FALSE(MarquerContact(service.cahier, trouve, "J"));
    EXPECT_EQ(Lire(service.cahier.chemin), Fiches("P18h E") + Fin());
}
#endif

TEST(FluxEtiquettes, LaFeuilleSeRemplit) {
    const std::string z = Etiquettes("Z01h");
    ServiceQSL service(Fiches("F18h"), z + kLibre + Fois(14, z));
    service.Faire("fiche 1");
    EXPECT_EQ(service.feuille.boites,
              (BoitesEtiquette{"", "F", "21/11/26", "18", "", "", "", "", "", "", "F", "1"}));
    for (const auto& [nom, gestes, vus] : Etapes(R"(
 last place : choix 2; fiche 1 -> panneau quitter imprimer restaurer "N° 16"
 full : boite 9 F6QSL; direct; valider
     -> panneau valider quitter imprimer restaurer " Plus d'étiquette disponible ! "
 released : restaurer -> panneau valider quitter imprimer "N° 2"
 placed : valider -> valider quitter imprimer "N° 2"
 review : choix 16 -> supprimer laisser imprimer "N° 16"
 freed : supprimer -> quitter imprimer "N° 16" dit N° 16 (Z 21/11/26 01) aucune
 none : tag 16; entree; choix 16 -> quitter imprimer restaurer " Plus d'étiquette disponible ! "
 still none : boite 1 N; valider -> quitter imprimer restaurer " Plus d'étiquette disponible ! "
 left : choix 1; tag 1; supprimer -> quitter imprimer restaurer " Plus d'étiquette disponible ! "
 nobody's : choix 16; choix 1; direct; laisser; boite 1 N; boite 11 1; valider
     -> quitter imprimer restaurer "N° 16" dit N° 16 (N) aucune)"))
        EXPECT_EQ(service.Faire(gestes), vus) << nom;
    EXPECT_EQ(service.OctetsFeuille(),
              z + Brute({{0, "F"}, {45, "DIRECT"}, {60, "21/11/2618"}, {96, "1"}}, 106) +
                  Fois(13, z) + Brute({{0, "N"}, {96, "1"}}, 106));
}

} // namespace orvalis::aides::etiquettes
