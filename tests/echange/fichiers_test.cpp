// Whole files, sound and not, and the command line.
#include "compagnons/db_orvalis/commande.h"
#include "echange/aides_echange.h"
#include "echange/lecture_cahier.h"
#include "echange/refus.h"

namespace orvalis::aides {
namespace {

namespace fs = std::filesystem;

constexpr const char* kDebut = "<CALL:5>F4WKA <QSO_DATE:8>20250109 ";

// Files -> contacts, less what the first one always has; then what is told.
TEST(FichierAdif, Adi) {
    const std::string d = kDebut;
    const Textes fichiers = {
        {d + "<NAME:4>Jean<EOR>", "SNOM=Jean"},
        {"\xEF\xBB\xBFLogger <b>1.0</b>\n<ADIF_VER:5>3.1.6 <eoh>\n" + d + "<name:4:S>Jean <eor>\n",
         "SNOM=Jean"},
        {d + "<STATE:2>OK // Oklahoma <NAME:4>Jean // <comment\n<EOR>", "SNOM=Jean"},
        {d + "<NAME:4>Jean <NAME:5>Jules <NAME:4>Jean<EOR>",
         "SNOM=Jean[NAME: champ répété : le premier compte]"},
        {d + "<NAME:4>Jean <SRX:3001>" + std::string(3001, 'x') + "<QSL_VIA:3000>" +
             std::string(3000, ' ') + "<QSL_VIA:2000>" + std::string(1999, ' ') + "x<EOR>",
         "SNOM=Jean|INFO=               x"},
        {d + "<NAME:4>Jean\n", "SNOM=Jean[EOR: la marque de fin manque]"},
        {d + "<NAME:40>Jean\n<EOR>\n", "SNOM=Jean[NAME: longueur au-delà de la fin du fichier : lu "
                                       "jusqu'à la marque suivante]"},
        {d + "<NAME:99999999999999999999>Jean <EOR>",
         "SNOM=Jean[NAME: longueur au-delà de la fin du fichier : lu jusqu'à la marque suivante]"},
        {d + "<NAME:9>Jean\n<QTH:4>LYON <EOR>",
         "SQTH=LYON|SNOM=Jean[NAME: longueur fausse : lu jusqu'à la marque suivante]"},
        {d + "<NAME:3>Jean <QTH:4>LYON <EOR>",
         "SQTH=LYON|SNOM=Jea[NAME: le texte continue au-delà de sa longueur : coupé]"},
        {d + "<NAME:9>Jean<EOR> <EOR>", "SNOM=Jean<EOR>"},
        {d + "<NAME><NAME:x>z<NAME:4>Jean <1<2<3> < <EOR>",
         "SNOM=Jean[NAME: sans longueur : laissé vide]"},
        {d + "<EOR>\n<EOR>\n", "[EOR: un contact sans aucun champ]"},
        {d + "<NAME:4>Jean<EOR><APP_LoTW_EOF>", "SNOM=Jean"},
        {d + "<NAME:4>Jean <PROGRAMID:1>X <EOH> <EOR>",
         "SNOM=Jean[EOR: la marque de fin manque][EOR: un contact sans aucun champ]"},
        // Two accents: bytes, characters, Windows-1252, a character cut in two.
        {d + "<NAME:8>Hélène\n<QTH:4>LYON<EOR>", "SQTH=LYON|SNOM=Hélène"},
        {d + "<NAME:6>Hélène\n<QTH:4>LYON<EOR>", "SQTH=LYON|SNOM=Hélène"},
        {d + "<NAME:6>H\xE9l\xE8ne\n<QTH:4>LYON<EOR>", "SQTH=LYON|SNOM=Hélène"},
        {d + "<NAME:5>Ren\xC3\xA9 <QTH:4>Ren\xC3<EOR>", "SQTH=Ren|SNOM=René"},
        // A file of confirmations on line.
        {"<PROGRAMID:4>LoTW <EOH>" + d + "<QSL_RCVD:1>Y <EOR>",
         "[QSL_RCVD: une confirmation en ligne n'est pas une carte]"},
    };
    const std::string devant = "CSGN=F4WKA|DQSO=09/01/25";
    for (const auto& [fichier, attendu] : fichiers) {
        std::string texte = ImporterTexte(fichier).texte;
        ASSERT_TRUE(texte.starts_with(devant)) << texte << fichier;
        texte.erase(0, devant.size());
        texte.erase(texte.find("|MLOC=JN18AA"), 12);
        EXPECT_EQ(texte.substr(texte.starts_with("|") ? 1 : 0), attendu) << fichier;
    }
}

TEST(FichierAdif, Adx) {
    const auto adx = [](const std::string& champs) {
        return "<?xml version=\"1.0\"?>\n<ADX><HEADER><PROGRAMID>X</PROGRAMID></HEADER><RECORDS>" +
               champs;
    };
    const std::string contact = "<CALL>F4WKA</CALL><QSO_DATE>20250109</QSO_DATE>";
    const std::string lu = "CSGN=F4WKA|DQSO=09/01/25";
    const std::string fin = "</RECORD></RECORDS></ADX>";
    const Textes fichiers = {
        {adx("<RECORD>" + contact + "<NAME_INTL>H&#233;l<![CDATA[è]]>ne</NAME_INTL>" + fin),
         lu + "|SNOM=Hélène|MLOC=JN18AA"},
        {adx("<record>" + contact +
             "<Band>20m</Band><APP PROGRAMID=\"Z\" FIELDNAME=\"A\" "
             "TYPE=\"S\">1</APP></record></RECORDS></ADX>"),
         lu + "|FREQ=20m|MLOC=JN18AA"},
        {adx("<RECORD>" + contact + "<NAME>H&egrave;</NAME>" + fin),
         lu + "|MLOC=JN18AA[RECORD: la lecture s'arrête dans ce contact][: la lecture s'arrête "
              "ici]"},
        {adx("<RECORD><X>1</X></RECORD><RECORD>" + contact + fin),
         lu + "|MLOC=JN18AA[RECORD: un contact sans aucun champ connu]"},
        {adx("<RECORD>" + contact + "<QTH>" + std::string(3000, 'x') + "</QTH>" + fin),
         lu + "|SQTH=xxxxxxxxxxxxxxxxxxxxxxxxx|MLOC=JN18AA[QTH: devient « "
              "xxxxxxxxxxxxxxxxxxxxxxxxx »]"},
        // The end of a long value is told, whichever it is.
        {adx("<RECORD>" + contact + "<SRX/><QTH>" + std::string(3000, 'x') + "y</QTH><QTH>" +
             std::string(3001, 'x') + "</QTH>" + fin),
         lu + "|SQTH=xxxxxxxxxxxxxxxxxxxxxxxxx|MLOC=JN18AA[QTH: champ répété : le premier compte]"
              "[QTH: devient « xxxxxxxxxxxxxxxxxxxxxxxxx »]"},
        {adx("<RECORD>" + contact + "<NAME>" + std::string(70'000, ' ') + "</NAME>" + fin),
         lu + "|MLOC=JN18AA[NAME: le rapport n'en montre que le début]"},
        {"<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<ADX><RECORD>" + contact +
             "<QTH>\x8CUF</QTH></RECORD></ADX>",
         lu + "|SQTH=ŒUF|MLOC=JN18AA"},
    };
    for (const auto& [fichier, attendu] : fichiers)
        EXPECT_EQ(ImporterTexte(fichier).texte, attendu) << fichier;
    // Cut in the middle, element by element: what was whole is there.
    const std::string entier = adx("<RECORD>" + contact + fin);
    const std::size_t complet = entier.find("</QSO_DATE>") + 11;
    for (std::size_t n = complet; n < entier.size(); ++n)
        EXPECT_TRUE(ImporterTexte(entier.substr(0, n)).texte.starts_with(lu)) << n;
    std::string noms;
    for (int i = 100; i < 200; ++i)
        noms += "<n" + std::to_string(i) + std::string(50'000, 'n') + "/>";
    const Textes refuses = {
        {"<!DOCTYPE a [<!ENTITY b \"c\">]><ADX><RECORD>" + contact + "</RECORD></ADX>", "entités"},
        {"", "pas de contact"},
        {"\\", "pas de contact"},
        {"<ADX></ADX>", "pas de contact"},
        {"<ADX>\n<a></b>", "La ligne 2 : une marque de fin n'est pas celle"},
        {"rien", "pas de contact"},
        {std::string(1 << 20, '<'), "pas de contact"},
        {"<ADX>" + Fois(200, "<a>") + "<RECORD>" + contact + "</RECORD>", "trop imbriqués"},
        {"<ADX>" + noms + "<RECORD>" + contact + "</RECORD>", "trop de noms"},
        {"<ADX a=\"" + std::string(3 << 20, 'x'), "trop longue"}};
    for (const auto& [refuse, pourquoi] : refuses)
        EXPECT_THAT([&texte = refuse] { static_cast<void>(ImporterTexte(texte)); },
                    testing::ThrowsMessage<RefusEchange>(testing::HasSubstr(pourquoi)))
            << refuse.substr(0, 80);
}

// Without a locator given: the last that a contact told, before the first one the first.
TEST(FichierAdif, LocatorDeLaStation) {
    const auto contact = [](const std::string& locator) {
        return kDebut + (locator.empty() ? "" : "<MY_GRIDSQUARE:6>" + locator) + "<EOR>\n";
    };
    const Dossier dossier;
    const auto source = dossier.Poser("f.adi", contact("") + contact("JN05AA") + contact("") +
                                                   contact("JN18AA") + contact(""));
    const auto bilan = ImporterAdif({source, dossier / "G.Vek", Ancien::Protege, "", {}}, {});
    EXPECT_EQ(bilan.locatorsSupposes, 3);
    std::string locators;
    const std::string cahier = Lire(dossier / "G.Vek");
    for (std::size_t i = 0; i < cahier.size(); i += kTailleFiche)
        locators += cahier.substr(i + 159, 6);
    EXPECT_EQ(locators, "JN05AAJN05AAJN05AAJN18AAJN18AAJN18AA");
    const auto muet = dossier.Poser("m.adi", contact(""));
    EXPECT_THROW(
        static_cast<void>(ImporterAdif({muet, dossier / "H.Vek", Ancien::Protege, "", {}}, {})),
        RefusEchange);
    EXPECT_FALSE(fs::exists(dossier / "H.Vek"));
}

// A logbook that changes between two readings is read again; one that never rests is refused.
TEST(LectureCahier, JusquaCeQueDeuxLecturesSAccordent) {
    const Dossier dossier;
    const auto chemin = dossier.Poser("F5ABC.Vek", Contact("F1AAA") + Fin());
    int changements = 3;
    int attentes = 0;
    Patience patience;
    patience.encore = [&] { return ++attentes < 5; };
    patience.entre = [&] {
        if (changements-- > 0)
            dossier.Poser("F5ABC.Vek", Contact("F1AAA") +
                                           Contact("F" + std::to_string(changements)) +
                                           (changements == 0 ? "" : Fin()));
    };
    const CahierLu lu = LireCahierEntier(chemin, patience);
    EXPECT_EQ(attentes, 3);
    ASSERT_EQ(lu.fiches.size(), 2U);
    EXPECT_EQ(TexteRogne(lu.fiches[1], Champ::CSGN), "F0");
    EXPECT_FALSE(lu.finPresente);
    changements = 99;
    attentes = 0;
    EXPECT_THROW(static_cast<void>(LireCahierEntier(chemin, patience)), RefusEchange);
    EXPECT_EQ(attentes, 5);
}

#ifndef _WIN32
// Command lines in a station's folder -> what is answered, and the files that are other than
// before.
TEST(DbOrvalis, Commandes) {
    const std::string adi = std::string(kDebut) + "<MY_GRIDSQUARE:6>JN18AA<EOR>";
    const std::vector<std::array<std::string, 3>> commandes = {
        {"--help", "0", ""},
        {"", "2", ""},
        {"--adif a.adi", "0", "a.adi"},
        {"--adif a.adi --adx a.adx", "2", ""},
        {"--adif=autre.adi --cahier=S.Vek", "0", "autre.adi"},
        {"--adif ancien.txt", "0", "ancien.txt"},
        {"--adif", "2", ""},
        {"--adif a.adi --adif b.adi", "2", ""},
        {"--adif a.adi --vers b.Vek", "2", ""},
        {"--adif rien/a.adi", "2", ""},
        {"--adif Orvalis", "2", ""},
        {"--adif a.adi --cahier rien.Vek", "2", ""},
        {"--adif a.adi --cahier S.Vek --heures Europe/Paris", "0", "a.adi"},
        {"--adif a.adi --heures Paris", "2", ""},
        {"--adif a.adi --heures zone.tab", "2", ""},
        {"--adif a.adi --heures LOCALES", "0", "a.adi"},
        {"--adif copie.vek", "2", ""},
        {"--adif dur --cahier S.Vek", "2", ""},
        {"--adif Orvalis/Parvel.cfg", "2", ""},
        {"--adif Orvalis/ParVel.cfg", "2", ""},
        {"--adif alias.adi", "2", ""},
        {"--importer f.adi --vers Orvalis/FeuilleQSL.txt", "2", ""},
        {"--adif source --cahier source", "2", ""},
        {"--adx a.adx --cahier abime", "1", "a.adx"},
        {"--base b.sqlite", "0", "b.sqlite"},
        {"--base b.sqlite --cahier abime", "1", "b.sqlite"},
        {"--base b.sqlite --cahier sansdate", "1", "b.sqlite"},
        {"--base ancien.txt", "2", ""},
        {"--base vide --heures utc", "2", ""},
        {"--base prise.sqlite", "2", ""},
        {"--bilan b.html", "0", "b.html"},
        {"--bilan b.html --cahier abime", "1", "b.html"},
        {"--bilan b.html --heures utc", "2", ""},
        {"--bilan dur --cahier S.Vek", "2", ""},
        {"--bilan alias.adi --cahier S.Vek", "2", ""},
        {"--importer f.adi", "2", ""},
        {"--importer f.adi --vers G.Vek", "0", "G.Vek G.rapport.txt"},
        {"--importer f.adi --vers G.Vek --locator 18JN", "2", ""},
        {"--importer f.adi --vers G.Vek --locator jn05aa", "0", "G.Vek G.rapport.txt"},
        {"--importer f.adi --vers S.Vek", "2", ""},
        {"--importer f.adi --vers S.Vek --remplacer", "0", "S.Vek S.rapport.txt"},
        {"--importer f.adi --vers pris.Vek --remplacer", "2", ""},
        {"--importer f.adi --vers perdu --remplacer", "2", ""},
        {"--importer f.adi --vers perdu", "2", ""},
        {"--importer f.adi --vers Orvalis/F5ABC.Vek --remplacer", "2", ""},
        {"--importer f.adi --vers Orvalis/f5abc.vek", "2", ""},
        {"--importer f.adi --vers mene.Vek --remplacer", "2", ""},
        {"--importer lu.rapport.txt --vers lu.Vek --remplacer", "2", ""},
        {"--importer f.adi --vers dur --remplacer", "2", ""},
        {"--importer f.adi --vers lien --remplacer", "2", ""},
        {"--importer f.adi --vers f.adi --remplacer", "2", ""},
        {"--importer vide --vers G.Vek", "2", ""},
        {"--importer deux.adi --vers G.Vek", "1", "G.Vek G.rapport.txt"},
    };
    const fs::path avant = fs::current_path();
    for (const auto& [ligne, code, attendu] : commandes) {
        const Dossier dossier;
        fs::create_directory(dossier / "Orvalis");
        dossier.Poser("Orvalis/Parvel.cfg", "\"F5ABC\",\"F5ABC.Vek\",\"JN18AA\"\r\n");
        dossier.Poser("Orvalis/F5ABC.Vek", Contact("F1AAA", "09/01/25", "10:00") + Fin());
        dossier.Poser("S.Vek", Contact("F2BBB", "09/01/25") + Fin());
        dossier.Poser("pris.Vek", Fin());
        dossier.Poser("abime", Contact("F2BBB", "?") + "F3");
        dossier.Poser("sansdate", Contact("F2BBB", "?") + Fin());
        dossier.Poser("source", Fin());
        dossier.Poser("f.adi", adi);
        dossier.Poser("lu.rapport.txt", adi);
        dossier.Poser("deux.adi", adi + adi);
        dossier.Poser("vide", "");
        dossier.Poser("ancien.txt", "x");
        dossier.Poser("prise.sqlite-wal", "");
        fs::create_hard_link(dossier / "Orvalis/F5ABC.Vek", dossier / "dur");
        fs::create_symlink(dossier / "Orvalis/F5ABC.Vek", dossier / "lien");
        fs::create_symlink(dossier / "Orvalis/F5ABC.Vek", dossier / "mene.rapport.txt");
        fs::create_symlink(dossier / "S.Vek", dossier / "alias.adi");
        fs::create_symlink(dossier / "nulle part", dossier / "perdu");
        const auto fichiers = [&] {
            std::map<std::string, std::string> tous;
            for (const auto& f : fs::recursive_directory_iterator(dossier / ""))
                if (!f.is_directory())
                    tous[fs::relative(f.path(), dossier / "")] = Lire(f.path());
            return tous;
        };
        const auto dabord = fichiers();
        Fichier ouvert(dossier / "pris.Vek", ModeFichier::LectureEcriture);
        ASSERT_TRUE(ouvert.Verrouiller());

        fs::current_path(dossier / "");
        const auto mots = Couper(ligne, " ");
        const std::vector<std::string_view> arguments(mots.begin(), mots.end());
        std::ostringstream sortie;
        std::ostringstream messages;
        const Retour retour =
            ExecuterCommande(arguments, {dossier / "", dossier / "", sortie, messages});
        fs::current_path(avant);

        EXPECT_EQ(std::to_string(static_cast<int>(retour)), code) << ligne << messages.str();
        EXPECT_EQ(sortie.str().empty(), ligne != "--help");
        EXPECT_EQ(messages.str().empty(), ligne == "--help") << ligne;
        std::string autres;
        for (const auto& [nom, octets] : fichiers())
            if (const auto place = dabord.find(nom);
                place == dabord.end() || place->second != octets)
                autres += (autres.empty() ? "" : " ") + nom;
        EXPECT_EQ(autres, attendu) << ligne << messages.str();
    }
}
#endif

} // namespace
} // namespace orvalis::aides
