// The base, asked in SQL; and the numbers of a logbook beside what SQL says of them.
#include "core/chemins.h"
#include "echange/aides_echange.h"
#include "echange/base.h"
#include "echange/bilan.h"

#include <random>
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
    const BilanSortie bilan = FaireBase({cahier, cible, "F5ABC", {}, "2026-11-21 18:31:25"});
    EXPECT_EQ(bilan.contacts, fiches.size());
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(TexteChemin(cible).c_str(), &base), SQLITE_OK);
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

// Rows and cells as Demander writes them.
template<class Suite, class Ecrire> std::string Rangees(const Suite& suite, Ecrire ecrire) {
    std::string texte;
    for (const auto& element : suite)
        texte += (texte.empty() ? "" : " & ") + ecrire(element);
    return texte;
}
template<class... T> std::string Cases(const T&... cases) {
    std::ostringstream flux;
    ((flux << '|' << cases), ...);
    return flux.str().substr(1);
}

TEST(Bilan, ChaqueNombreCommeEnSql) {
    const std::vector<std::pair<Champ, std::vector<std::string>>> tirages = {
        {Champ::CSGN,
         {"F1AAA", "F1BBB", "F1CCC", "F1AAA/P", "DL1DDD", "EA2EEE", "VK3FFF", "W1GGG", "ZL2HHH",
          "JA1III", "PY5JJJ", "5R8KKK", "I4LLL", "F0É", ""}},
        {Champ::DQSO, {"09/01/60", "31/12/59", "28/02/25", "29/02/25", "29/02/24", "??", ""}},
        {Champ::FREQ, {"7.085", "14250", "20m", "144.3", "10489.6", "1", "40M", "rien", ""}},
        {Champ::MODE, {"USB", "LSB", "SSB", "CW", "FT4", "FT8", "PSK31", "OLIVI", "PHONE", ""}},
        {Champ::SLOC,
         {"JN18AA", "JN05AA", "QF22LB", "RE78JS", "PM95RQ", "FN42AA", "GG54KN", "JN05", "ZZ99ZZ",
          ""}},
        {Champ::DEPT, {"75", "1", "001", "20", "2a", "2B", "971", "974", "96", "975", "0", ""}},
        {Champ::MQSL, {"En cours", "08/03/25", "OK", "non", "?", "", "", ""}},
        {Champ::SQSL, {"08/03/25", "OK", "non", "?", "", "", "", ""}},
        {Champ::MLOC, {"JN18AA", "JN18AA", "IN88XX", "ZZ", ""}}};
    std::mt19937 hasard(13); // NOLINT(cert-msc51-cpp): the same records each time
    std::vector<QsoRecord> fiches(3000);
    std::string octets;
    for (QsoRecord& fiche : fiches) {
        for (const auto& [champ, valeurs] : tirages)
            MettreChamp(fiche, champ, valeurs[hasard() % valeurs.size()]);
        octets.append(fiche.octets.begin(), fiche.octets.end());
    }
    const Dossier dossier;
    const auto cible = dossier / "S.sqlite";
    static_cast<void>(FaireBase({dossier.Poser("S.Vek", octets + Fin()), cible, "", {}, ""}));
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open(TexteChemin(cible).c_str(), &base), SQLITE_OK);

    const BilanCahier b = FaireBilan(fiches);
    const auto compte = [](const ComptePar& c) { return Cases(c.nom, c.contacts); };
    std::string bandes = "&";
    for (const Bande& bande : Bandes())
        bandes.append(bande.nom).append("&");
    const std::string rangBande = // the bands in the order of their waves
        "instr('" + bandes + "', '&' || bande || '&')";
    const std::string usuel =
        "CASE WHEN mode_adif = 'SSB' OR sous_mode IS NULL THEN mode_adif ELSE sous_mode END";
    const auto etats = [](const CartesParEtat& e) { return Cases(e[0], e[1], e[2], e[3], e[4]); };
    const auto sqlEtats = [](const std::string& colonne) {
        std::string sql = "SELECT 0";
        for (const char* etat : {"", "non", "en cours", "faite", "illisible"})
            sql += ", sum(" + colonne + " = '" + etat + "')";
        return sql.replace(7, 3, "") + " FROM qso";
    };
    const auto etatDepartement = [](EtatDepartement etat) {
        return etat == EtatDepartement::Jamais     ? "jamais"
               : etat == EtatDepartement::Contacte ? "contacté"
                                                   : "confirmé";
    };
    const Textes questions = {
        {"SELECT count(*), count(DISTINCT nullif(csgn, '')), min(date), max(date) FROM qso",
         Cases(b.contacts, b.stations, EcrireJourIso(*b.premier), EcrireJourIso(*b.dernier))},
        {"SELECT numero FROM dates_illisibles",
         Rangees(b.datesIllisibles, [](auto n) { return std::to_string(n); })},
        {"SELECT annee, contacts FROM par_annee WHERE annee IS NOT NULL",
         Rangees(b.annees, [](const auto& a) { return Cases(a.annee, a.contacts); })},
        {"WITH RECURSIVE m(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM m WHERE n < 12) "
         "SELECT (SELECT count(*) FROM qso WHERE 0 + substr(date, 6, 2) = n) FROM m",
         Rangees(b.mois, [](auto n) { return std::to_string(n); })},
        {"SELECT bande, contacts FROM par_bande WHERE bande IS NOT NULL ORDER BY " + rangBande,
         Rangees(b.bandes, compte)},
        {"SELECT " + usuel +
             " AS nom, count(*) AS n FROM qso WHERE mode_adif IS NOT NULL "
             "GROUP BY 1 ORDER BY n DESC, nom",
         Rangees(b.modes, compte)},
        {"SELECT sum(bande IS NULL), sum(mode_adif IS NULL) FROM qso",
         Cases(b.sansBande, b.sansMode)},
        {"SELECT * FROM par_departement ORDER BY 0 + code",
         Rangees(b.departements,
                 [&](const BilanDepartement& d) {
                     return Cases(d.code, d.nom, d.contacts, etatDepartement(d.etat));
                 })},
        {"SELECT sum(etat <> 'jamais'), sum(etat = 'confirmé') FROM par_departement",
         Cases(b.departementsContactes, b.departementsConfirmes)},
        {"SELECT carre, contacts, confirmes > 0 FROM par_carre",
         Rangees(b.carres,
                 [](const BilanCarre& c) { return Cases(c.carre, c.contacts, c.confirme); })},
        {"SELECT sum(confirmes > 0) FROM par_carre", Cases(b.carresConfirmes)},
        {"SELECT numero, csgn, carre, date, distance FROM (SELECT *, row_number() OVER "
         "(PARTITION BY csgn ORDER BY km DESC, numero) AS rang FROM qso WHERE km > 0 AND csgn <> "
         "'')"
         " WHERE rang = 1 ORDER BY km DESC, numero LIMIT 10",
         Rangees(b.lointains,
                 [](const Lointain& l) {
                     return Cases(l.numero, l.indicatif, l.carre.empty() ? "-" : l.carre,
                                  l.date ? EcrireJourIso(*l.date) : "-", l.distance);
                 })},
        {sqlEtats("ma_qsl"), etats(b.maCarte)},
        {sqlEtats("sa_qsl"), etats(b.saCarte)},
        {"SELECT count(*) FROM qsl_a_envoyer WHERE sa_qsl = 'faite'", Cases(b.aRepondre)},
    };
    for (const auto& [sql, attendu] : questions)
        EXPECT_EQ(Demander(base, sql), attendu) << sql;
    EXPECT_EQ(b.lointains.size(), kNbLointains);
    sqlite3_close(base);
}

} // namespace
} // namespace orvalis::aides
