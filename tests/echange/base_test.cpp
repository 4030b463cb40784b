// The base, asked in SQL.
#include "echange/aides_echange.h"
#include "echange/base.h"

#include <sqlite3.h>

namespace orvalis::aides {
namespace {

// Rows between " & ", cells between strokes, "-" for no value.
std::string Demander(sqlite3* base, const std::string& sql) {
    std::string texte;
    const auto ligne = [](void* la, int n, char** cases, char** /*noms*/) {
        auto& suite = *static_cast<std::string*>(la);
        for (int i = 0; i < n; ++i)
            suite += (i > 0           ? "|"
                      : suite.empty() ? ""
                                      : " & ") +
                     std::string(cases[i] == nullptr ? "-" : cases[i]);
        return 0;
    };
    char* erreur = nullptr;
    if (sqlite3_exec(base, sql.c_str(), ligne, &texte, &erreur) != SQLITE_OK)
        texte = erreur;
    sqlite3_free(erreur);
    return texte;
}

TEST(Base, CeQueLesFichesVeulentDire) {
    const Dossier dossier;
    const std::vector<std::string> fiches = {
        "CSGN=F1AAA|DQSO=09/01/60|HDEB=10:00|HFIN=24:00|FREQ=7.085|MODE=USB|SLOC=JN05AA|DEPT=2A|"
        "INFO=ANTENNE        F5XYZ|MQSL=En cours|SQSL=08/03/25|MLOC=JN18AA",
        "CSGN=F1AAA|DQSO=31/12/59|FREQ=20M|MODE=OLIVI|SLOC=JN05AA|DEPT=020|MQSL=08/03/25|MLOC=JN18",
        "CSGN=DL1BBB|DQSO=30/02/25|FREQ=rien|MODE=PHONE|SLOC=JN18AA|DEPT=75|MQSL=?|MLOC=JN18AA",
        "CSGN=Ö\u0090|DQSO=01/01/25|FREQ=14250|SLOC=JN05|SNOM=Hélène",
        "",
    };
    std::string octets;
    for (const std::string& fiche : fiches) {
        const QsoRecord f = FicheDe(fiche);
        octets.append(f.octets.begin(), f.octets.end());
    }
    const auto cahier = dossier.Poser("S.Vek", octets + Fin());
    const auto cible = dossier / "S.sqlite";
    const BilanBase bilan = FaireBase({cahier, cible, "F5ABC", {}, "2026-11-21 18:31:25"});
    EXPECT_EQ(bilan.contacts, fiches.size());
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(cible.c_str(), &base), SQLITE_OK);
    const Textes questions = {
        {"SELECT date,debut,fin,annee,hertz,bande,mode_adif,sous_mode FROM qso",
         "1960-01-09|10:00|-|1960|7085000|40m|SSB|USB & 2059-12-31|-|-|2059|-|20m|OLIVIA|- & "
         "-|-|-|-|-|-|-|- & 2025-01-01|-|-|2025|14250000|20m|-|- & -|-|-|-|-|-|-|-"},
        {"SELECT departement,nom_departement,carre,remarque,manager FROM qso WHERE numero < 3",
         "2A|Corse-du-Sud|JN05|ANTENNE|F5XYZ & 20|Corse|JN05||"},
        {"SELECT distance,azimut,km,round(relevement) FROM qso",
         "367.2 Km|155°|367.2|205.0 & ||-|- & 0 Km|...|0.0|- & ||-|- & 0 Km|...|0.0|-"},
        {"SELECT ma_qsl,ma_qsl_date,sa_qsl,sa_qsl_date FROM qso WHERE numero < 4",
         "en cours|-|faite|2025-03-08 & faite|2025-03-08||- & illisible|-||-"},
        {"SELECT csgn,snom FROM qso WHERE numero = 4", "Ö\u0090|Hélène"},
        {"SELECT count(*) FROM qso WHERE length(octets) = 165", "5"},
        {"SELECT * FROM par_station WHERE contacts > 1", "F1AAA|2|1960-01-09|2059-12-31|1"},
        {"SELECT * FROM par_departement WHERE contacts > 0",
         "20|Corse|2|confirmé & 75|Ville-de-Paris|1|contacté"},
        {"SELECT count(*) FROM par_departement WHERE etat = 'jamais'", "97"},
        {"SELECT carre,contacts FROM par_carre", "JN05|3 & JN18|1"},
        {"SELECT numero FROM qsl_en_cours", "1"},
        {"SELECT numero FROM qsl_envoyees", "2"},
        {"SELECT numero FROM qsl_recues", "1"},
        {"SELECT numero FROM qsl_a_envoyer", "4 & 5"},
        {"SELECT numero FROM dates_illisibles", "3 & 5"},
        {"SELECT contacts,station,fait_le,dates_illisibles FROM source",
         "5|F5ABC|2026-11-21 18:31:25|2"},
        {"PRAGMA integrity_check", "ok"},
    };
    for (const auto& [sql, attendu] : questions)
        EXPECT_EQ(Demander(base, sql), attendu) << sql;
    sqlite3_close(base);
}

} // namespace
} // namespace orvalis::aides
