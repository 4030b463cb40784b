// A contact in the fields of the format, and a contact of another program in the fields of the
// logbook.
#include "echange/aides_echange.h"
#include "echange/lettres.h"
#include "echange/refus.h"

#include <random>

namespace orvalis::aides {
namespace {

// Fields of the logbook -> the contact as a line of ADI, less the date that every row has.
TEST(ContactAdif, Sortie) {
    const Textes lignes = {
        {"FREQ=7.085|MODE=SSB", "<FREQ:5>7.085 <BAND:3>40m <MODE:3>SSB"},
        {"FREQ=145,5|MODE=FT4", "<FREQ:5>145.5 <BAND:2>2m <MODE:4>MFSK <SUBMODE:3>FT4 "
                                "<APP_ORVALIS_FREQ:5>145,5"},
        {"FREQ=14250|MODE=USB", "<FREQ:6>14.250 <BAND:3>20m <MODE:3>SSB <SUBMODE:3>USB "
                                "<APP_ORVALIS_FREQ:5>14250"},
        {"FREQ=20m|MODE=DIGIT", "<BAND:3>20m <MODE:12>DIGITALVOICE"},
        {"FREQ=70CM|MODE=BLU", "<BAND:4>70cm <MODE:3>SSB <APP_ORVALIS_FREQ:4>70CM "
                               "<APP_ORVALIS_MODE:3>BLU"},
        {"FREQ=27.205|MODE=8PSK1", "<FREQ:6>27.205 <MODE:3>PSK <APP_ORVALIS_MODE:5>8PSK1"},
        {"MODE=PSK12", "<MODE:3>PSK <SUBMODE:6>PSK125"},
        {"MODE=PHONI", "<APP_ORVALIS_MODE:5>PHONI"},
        {"SRST=59|MRST=599 001", "<RST_SENT:2>59 <RST_RCVD:7>599 001"},
        {"SNOM=Hélène|SQTH=ÉTRÉCHY",
         "<NAME:6>Helene <QTH:7>ETRECHY "
         "<APP_ORVALIS_SQTH:11>%C9TR%C9CHY <APP_ORVALIS_SNOM:10>H%E9l%E8ne"},
        {"SNOM=100% \u0090", "<NAME:6>100% ? <APP_ORVALIS_SNOM:10>100%25 %90"},
        {"SQTH= A  B", "<QTH:4>A  B <APP_ORVALIS_SQTH:9>%20A %20B"},
        {"INFO=ANTENNE        VIA F5XYZ", "<COMMENT:7>ANTENNE <QSL_VIA:9>VIA F5XYZ"},
        {"SLOC=JN25|DEPT=042", "<GRIDSQUARE:4>JN25 <DXCC:3>227 <STATE:2>42 "
                               "<APP_ORVALIS_DEPT:3>042"},
        {"SLOC=jn25ek|DEPT=20", "<DXCC:3>214 <APP_ORVALIS_SLOC:6>jn25ek"},
        {"DEPT=2A", "<DXCC:3>214 <STATE:2>2A <APP_ORVALIS_DEPT:2>2A"},
        {"DEPT=974", "<APP_ORVALIS_DEPT:3>974"},
        {"MQSL=En cours|SQSL=OK", "<QSL_SENT:1>Q <QSL_RCVD:1>Y"},
        {"MQSL=08/03/25|SQSL=En cours", "<QSL_SENT:1>Y <QSLSDATE:8>20250308 "
                                        "<APP_ORVALIS_SQSL:8>En cours"},
        {"MQSL=à faire|SQSL=non", "<QSL_RCVD:1>N <APP_ORVALIS_MQSL:9>%E0 faire "
                                  "<APP_ORVALIS_SQSL:3>non"},
        {"CSGN=\\F5ABC", "<APP_ORVALIS_CSGN:6>\\F5ABC"},
    };
    for (const auto& [champs, attendu] : lignes) {
        const bool indicatif = champs.starts_with("CSGN");
        QsoRecord fiche = FicheDe(champs);
        if (!indicatif)
            MettreChamp(fiche, Champ::CSGN, "F4WKA");
        MettreChamp(fiche, Champ::DQSO, "09/01/60");
        MettreChamp(fiche, Champ::MLOC, "JN18DU");
        ContactAdif contact;
        ExporterFiche(fiche, {}, Jumeaux::Non, contact);
        contact[Balise::MY_GRIDSQUARE].clear();
        std::string ligne;
        AjouterContact(GenreAdif::Adi, contact, ligne);
        EXPECT_EQ(ligne, (indicatif ? "" : "<CALL:5>F4WKA ") +
                             std::string("<QSO_DATE:8>19600109 ") + attendu + " <EOR>\n")
            << champs;
    }
}

// The hours of the day, in UTC and in zones that change theirs; "=" is what was there before.
TEST(ContactAdif, Heures) {
    const std::vector<std::array<std::string, 3>> lignes = {
        {"", "09/01/25 23:50 00:10", "20250109 2350 20250110 0010"},
        {"Europe/Paris", "09/01/25 00:30 00:40", "20250108 2330  2340"},
        {"Europe/Paris", "01/07/25 01:50 02:10", "20250630 2350 20250701 0010"},
        {"Europe/Paris", "26/10/25 02:30 02:40", "20251026 0030  0040"}, // comes twice
        {"Europe/Paris", "30/03/25 02:30 03:10", "20250330 0130  0110"}, // never comes
        {"America/New_York", "31/12/59 23:00 23:05", "20600101 0400  0405"},
        {"Europe/Paris", "01/01/60 00:30 00:31", "19591231 2330  2331"},
        {"Pacific/Kiritimati", "01/01/25", "20250101   "},
    };
    for (const auto& [zone, heures, attendu] : lignes) {
        const Fuseau fuseau = zone.empty() ? Fuseau() : Fuseau(zone);
        const auto m = Couper(heures, " ");
        const QsoRecord fiche = FicheDe("CSGN=F4WKA|DQSO=" + m[0] +
                                        (m.size() < 2 ? "" : "|HDEB=" + m[1] + "|HFIN=" + m[2]));
        ContactAdif contact;
        ExporterFiche(fiche, fuseau, Jumeaux::Non, contact);
        EXPECT_EQ(contact[Balise::QSO_DATE] + " " + contact[Balise::TIME_ON] + " " +
                      contact[Balise::QSO_DATE_OFF] + " " + contact[Balise::TIME_OFF],
                  attendu)
            << zone << heures;
        EXPECT_EQ(ImporterContact(contact, {fuseau, "JN18AA"}).fiche, fiche) << zone << heures;
    }
    EXPECT_THROW(Fuseau("Europe/Lutece"), RefusEchange);
    EXPECT_THROW(Fuseau("../../etc/passwd"), RefusEchange);
}

// Fields of another program -> fields of the logbook, and what is told. Every row is a contact of
// F4WKA on 9 January 2025 from JN18AA, unless it says so itself.
TEST(ContactAdif, Entree) {
    const Textes lignes = {
        {"TIME_ON=1205|TIME_OFF=120759", "HDEB=12:05|HFIN=12:07"},
        {"TIME_ON=12:05:10|TIME_OFF=1269", "HDEB=12:05[TIME_OFF: heure illisible : laissée vide]"},
        {"TIME_ON=2350|TIME_OFF=0010", "HDEB=23:50|HFIN=00:10"},
        {"TIME_ON=1000|TIME_OFF=0900|QSO_DATE_OFF=20250112",
         "HDEB=10:00|HFIN=09:00[QSO_DATE_OFF: une fin plus d'un jour après le début : seule "
         "l'heure de fin est gardée]"},
        {"TIME_ON=1000|TIME_OFF=0900|QSO_DATE_OFF=20250109",
         "HDEB=10:00|HFIN=09:00[QSO_DATE_OFF: une fin avant le début : seule l'heure de fin est "
         "gardée]"},
        {"TIME_ON=1000|TIME_OFF=1100|QSO_DATE_OFF=20250231",
         "HDEB=10:00|HFIN=11:00[QSO_DATE_OFF: date illisible : seule l'heure de fin est gardée]"},
        {"FREQ=14.06100|BAND=20M", "FREQ=14.061"},
        {"FREQ=14,1|MODE=USB", "FREQ=14.1|MODE=USB"},
        {"FREQ=7050|MODE=MFSK|SUBMODE=FT4", "FREQ=7.050|MODE=FT4[FREQ: devient « 7.050 » MHz]"},
        {"FREQ=10120|BAND=30m|MODE=FT4", "FREQ=10.120|MODE=FT4[FREQ: devient « 10.120 » MHz]"},
        {"FREQ=10368.1|BAND=3cm", "FREQ=10368.1"},
        {"FREQ=14.070|BAND=40m",
         "FREQ=14.070[BAND: ne va pas avec la fréquence, qui compte seule]"},
        {"FREQ=0|BAND=20M", "FREQ=20m[FREQ: n'est pas une fréquence : devient « 20m »]"},
        {"FREQ=14.250.5", "[FREQ: n'est pas une fréquence : laissé vide]"},
        {"BAND=70CM|MODE=DIGITALVOICE|SUBMODE=C4FM", "FREQ=70cm|MODE=C4FM"},
        {"MODE=PSK|SUBMODE=PSK63RC10", "MODE=PSK[SUBMODE: devient « PSK »]"},
        {"MODE=OLIVIA", "MODE=OLIVI"},
        {"MODE=PACKET", "MODE=PACKE[MODE: devient « PACKE »]"},
        {"NAME=Jean-Christophe Léon", "SNOM=Jean-Christophe[NAME: devient « Jean-Christophe »]"},
        {"NAME=Helene|NAME_INTL=Hélène", "SNOM=Hélène"},
        {"NAME=Łódź 東", "SNOM=Lódz ?[NAME: devient « Lódz ? »]"},
        {"COMMENT=DEUX  MOTS|QSL_VIA=F5XYZ", "INFO=DEUX  MOTS     F5XYZ"},
        {"GRIDSQUARE=jn25ek37", "SLOC=JN25EK[GRIDSQUARE: devient « JN25EK »]"},
        {"GRIDSQUARE=EM15", "SLOC=EM15"},
        {"GRIDSQUARE=15EM", "[GRIDSQUARE: n'est pas un locator : laissé vide]"},
        {"MY_GRIDSQUARE=jn05|DXCC=227|STATE=42", "DEPT=42[MY_GRIDSQUARE: devient « JN18AA »]"},
        {"DXCC=214|STATE=2B", "DEPT=20[STATE: devient « 20 »]"},
        {"DXCC=214", "DEPT=20"},
        {"DXCC=291|STATE=42", ""},
        {"DXCC=227|STATE=20", "[STATE: laissé vide]"},
        {"QSL_SENT=R|QSL_RCVD=R", "[QSL_SENT: sans place dans le cahier : laissé vide]"
                                  "[QSL_RCVD: sans place dans le cahier : laissé vide]"},
        {"QSL_SENT=Q|QSL_RCVD=V|QSLRDATE=20250308", "MQSL=En cours|SQSL=08/03/25"},
        {"QSL_SENT=Y|QSL_SENT_VIA=E|QSL_RCVD=Y|QSL_RCVD_VIA=B",
         "SQSL=OK[QSL_SENT: une confirmation en ligne n'est pas une carte]"},
        {"QSL_SENT=Y|QSLSDATE=19590101", "MQSL=OK[QSLSDATE: date illisible : devient « OK »]"},
        {"QSLRDATE=20250308", "[QSLRDATE: une date sans état de la carte : laissée de côté]"},
        {"CALL=f4wka/p", ""},
        {"CALL=F4WKA/PORTABLE/QRP", "-[CALL: indicatif de plus de 15 caractères]"},
        {"CALL=\\", "-[CALL: un indicatif ne commence pas par « \\ »]"},
        {"CALL=", "-[CALL: sans indicatif]"},
        {"QSO_DATE=", "-[QSO_DATE: sans date]"},
        {"QSO_DATE=20250229", "-[QSO_DATE: date illisible]"},
        {"QSO_DATE=20600101", "-[QSO_DATE: année hors de 1960 à 2059]"},
        // Our own fields, where the others say something else or nothing.
        {"NAME=Jules|APP_ORVALIS_SNOM=J%E9an", "SNOM=Jules[APP_ORVALIS_SNOM: modifié par un autre "
                                               "programme, dont les champs comptent]"},
        {"NAME=Helene|APP_ORVALIS_SNOM=H%E9l%E8ne", "SNOM=Hélène"},
        {"NAME=Helene|APP_ORVALIS_SNOM=H%E", "SNOM=Helene[APP_ORVALIS_SNOM: illisible : les autres "
                                             "champs comptent]"},
        {"FREQ=14.061000|BAND=20M|APP_ORVALIS_FREQ=14.0610", "FREQ=14.0610"},
        {"CALL=|APP_ORVALIS_CSGN=%5C", "-[CALL: un indicatif « \\ » finirait le cahier]"},
    };
    for (const auto& [champs, attendu] : lignes) {
        ContactAdif contact;
        for (const std::string& morceau : Couper(champs, "|"))
            PoserChamp(contact, morceau.substr(0, morceau.find('=')),
                       morceau.substr(morceau.find('=') + 1));
        const auto defaut = [&](Balise balise, const std::string& valeur) {
            if (champs.find(std::string(NomBalise(balise)) + "=") != 0)
                contact[balise] = valeur;
        };
        defaut(Balise::CALL, "F4WKA");
        defaut(Balise::QSO_DATE, "20250109");
        const Fuseau utc;
        ContactImporte importe = ImporterContact(contact, {utc, "JN18AA"});
        EXPECT_EQ(TexteRogne(importe.fiche, Champ::MLOC), "JN18AA");
        for (const Champ champ : {Champ::CSGN, Champ::DQSO, Champ::MLOC})
            MettreChamp(importe.fiche, champ, "");
        std::string texte = importe.repris ? TexteDe(importe.fiche) : "-";
        if (!importe.repris)
            importe.remarques = {importe.raison};
        for (const Remarque& r : importe.remarques)
            texte += "[" + r.champ + ": " + r.devenu + "]";
        EXPECT_EQ(texte, attendu) << champs;
    }
}

// Whatever bytes a logbook holds, both kinds of file bring them back, through text and all.
TEST(ContactAdif, OctetPourOctet) {
    const std::vector<std::string> valeurs = {"",
                                              " ",
                                              "F5ABC",
                                              "09/01/25",
                                              "29/02/25",
                                              "01-01-60",
                                              "23:59",
                                              "00:00",
                                              "02:30",
                                              "30/03/25",
                                              "26/10/25",
                                              "24:00",
                                              "7.085",
                                              "20m",
                                              "20M",
                                              "SSB",
                                              "DIGIT",
                                              "59",
                                              "JN18DU",
                                              "JN18",
                                              "jn18du",
                                              "75",
                                              "2A",
                                              "020",
                                              "971",
                                              "En cours",
                                              "OK",
                                              "non",
                                              "08/03/25",
                                              "<EOR>",
                                              "<CALL:5>F5AB",
                                              "]]>&lt;",
                                              "%41",
                                              "A  B",
                                              "Hélène",
                                              "œuf",
                                              "\u0081\u0090",
                                              "\\",
                                              "14250",
                                              ".5",
                                              "5.",
                                              "1,5",
                                              "  x  x",
                                              "\t\n\r",
                                              "-->"};
    std::mt19937 hasard(13);
    const auto tirer = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(hasard);
    };
    std::vector<QsoRecord> fiches = {FicheDe(""), FicheDe(""), FicheDe("CSGN=F5ABC"),
                                     FicheDe("CSGN=F5ABC")};
    for (int i = 0; i < 3000; ++i) {
        QsoRecord fiche;
        for (const auto& d : kChamps)
            MettreChamp(fiche, d.champ, valeurs[tirer(valeurs.size())]);
        for (std::size_t bruit = tirer(4); bruit > 0 && i % 2 == 0; --bruit)
            fiche.octets.at(tirer(kTailleFiche)) = static_cast<char>(tirer(256));
        if (!EstFinDeLog(fiche))
            fiches.push_back(fiche);
    }
    for (const char* zone : {"", "Europe/Paris"})
        for (const GenreAdif genre : {GenreAdif::Adi, GenreAdif::Adx}) {
            const Fuseau fuseau = *zone == '\0' ? Fuseau() : Fuseau(zone);
            const Dossier dossier;
            const auto source = dossier.Poser("f", Ecrit(genre, fiches, fuseau));
            const auto bilan =
                ImporterAdif({source, dossier / "G.Vek", Ancien::Protege, "AA00AA", {}}, fuseau);
            EXPECT_EQ(bilan.repris, static_cast<std::int64_t>(fiches.size()));
            EXPECT_EQ(bilan.changes + bilan.laisses + bilan.locatorsSupposes, 0);
            EXPECT_GE(bilan.egaux, 2);
            const std::string cahier = Lire(dossier / "G.Vek");
            ASSERT_EQ(cahier.size(), (fiches.size() + 1) * kTailleFiche);
            for (std::size_t i = 0; i < fiches.size(); ++i)
                ASSERT_EQ(Enregistrement(cahier.substr(i * kTailleFiche, kTailleFiche)), fiches[i])
                    << i << zone << TexteDe(fiches[i]);
        }
}

} // namespace
} // namespace orvalis::aides
