#include "echange/base.h"

#include "core/chemins.h"
#include "core/departements.h"
#include "echange/exporter.h"
#include "echange/fichier_neuf.h"
#include "echange/lecture_cahier.h"
#include "echange/mesure.h"
#include "echange/refus.h"
#include "echange/sens.h"
#include "echange/sqlite.h"
#include "geo/locator.h"

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <variant>

namespace orvalis {
namespace {

namespace fs = std::filesystem;

// A contact on its way into a row.
struct Ligne {
    const QsoRecord& fiche;
    SensFiche sens;
    MesureContact mesure;
    std::optional<double> relevement; ///< the true one, degrees from North
};

// From the North over the East, along the great circle. The azimuth of the card is another matter:
// it is mirrored for correspondents in the East.
double Relevement(std::string_view ici, std::string_view la) {
    constexpr double kRadian = std::numbers::pi / 180;
    const double lat1 = LocatorVersLatitude(ici) * kRadian;
    const double lat2 = LocatorVersLatitude(la) * kRadian;
    // Longitudes are positive to the West.
    const double ecart = (LocatorVersLongitude(ici) - LocatorVersLongitude(la)) * kRadian;
    const double y = std::sin(ecart) * std::cos(lat2);
    const double x =
        std::cos(lat1) * std::sin(lat2) - std::sin(lat1) * std::cos(lat2) * std::cos(ecart);
    const double degres = std::atan2(y, x) / kRadian;
    return degres < 0 ? degres + 360 : degres;
}

std::optional<double> RelevementDe(const QsoRecord& fiche) {
    const std::string_view ici = OctetsChamp(fiche, Champ::MLOC);
    const std::string_view la = OctetsChamp(fiche, Champ::SLOC);
    if (ici == la || !LocatorValide(ici) || !LocatorValide(la))
        return {};
    return Relevement(ici, la);
}

constexpr std::string_view NomEtat(EtatQsl etat) {
    constexpr std::array<std::string_view, 5> kNoms = {"", "non", "en cours", "faite", "illisible"};
    return kNoms[static_cast<std::size_t>(etat)];
}

// A value that lasts until its row is put in.
using Valeur = std::variant<std::monostate, std::string, std::int64_t, double>;

Valeur DateOuRien(const std::optional<Jour>& jour) {
    return jour ? Valeur{EcrireJourIso(*jour)} : Valeur{};
}
Valeur HeureOuRien(const std::optional<Heure>& heure) {
    return heure ? Valeur{EcrireHeure(*heure)} : Valeur{};
}
Valeur TexteOuRien(std::string_view texte) {
    return texte.empty() ? Valeur{} : Valeur{std::string{texte}};
}

struct Colonne {
    std::string_view nom;
    std::string_view type;
    Valeur (*valeur)(const Ligne& ligne);
};

// What the fields mean; the number, the sixteen fields and the bytes stand around them.
constexpr std::array<Colonne, 22> kColonnes = {{
    {"date", "TEXT", [](const Ligne& l) { return DateOuRien(l.sens.date); }},
    {"debut", "TEXT", [](const Ligne& l) { return HeureOuRien(l.sens.debut); }},
    {"fin", "TEXT", [](const Ligne& l) { return HeureOuRien(l.sens.fin); }},
    {"annee", "INTEGER",
     [](const Ligne& l) {
         return l.sens.date ? Valeur{std::int64_t{static_cast<int>(l.sens.date->year())}}
                            : Valeur{};
     }},
    {"hertz", "INTEGER",
     [](const Ligne& l) {
         return l.sens.frequence.hertz ? Valeur{*l.sens.frequence.hertz} : Valeur{};
     }},
    {"bande", "TEXT",
     [](const Ligne& l) {
         return l.sens.frequence.bande == nullptr
                    ? Valeur{}
                    : Valeur{std::string{l.sens.frequence.bande->nom}};
     }},
    {"mode_adif", "TEXT", [](const Ligne& l) { return TexteOuRien(l.sens.mode.mode); }},
    {"sous_mode", "TEXT", [](const Ligne& l) { return TexteOuRien(l.sens.mode.sousMode); }},
    {"departement", "TEXT", [](const Ligne& l) { return TexteOuRien(l.sens.departement); }},
    {"nom_departement", "TEXT", [](const Ligne& l) { return TexteOuRien(l.sens.nomDepartement); }},
    {"carre", "TEXT", [](const Ligne& l) { return TexteOuRien(l.sens.carre); }},
    {"remarque", "TEXT", [](const Ligne& l) { return Valeur{l.sens.remarque}; }},
    {"manager", "TEXT", [](const Ligne& l) { return Valeur{l.sens.manager}; }},
    {"distance", "TEXT", [](const Ligne& l) { return Valeur{l.mesure.distance}; }},
    {"azimut", "TEXT", [](const Ligne& l) { return Valeur{l.mesure.azimut}; }},
    {"km", "REAL", [](const Ligne& l) { return l.mesure.km ? Valeur{*l.mesure.km} : Valeur{}; }},
    {"relevement", "REAL",
     [](const Ligne& l) { return l.relevement ? Valeur{*l.relevement} : Valeur{}; }},
    {"ma_qsl", "TEXT",
     [](const Ligne& l) { return Valeur{std::string{NomEtat(l.sens.maCarte.etat)}}; }},
    {"ma_qsl_date", "TEXT", [](const Ligne& l) { return DateOuRien(l.sens.maCarte.date); }},
    {"sa_qsl", "TEXT",
     [](const Ligne& l) { return Valeur{std::string{NomEtat(l.sens.saCarte.etat)}}; }},
    {"sa_qsl_date", "TEXT", [](const Ligne& l) { return DateOuRien(l.sens.saCarte.date); }},
    {"date_illisible", "INTEGER",
     [](const Ligne& l) { return Valeur{std::int64_t{l.sens.date ? 0 : 1}}; }},
}};

std::string Minuscules(std::string_view nom) {
    std::string texte(nom);
    for (char& c : texte)
        c = static_cast<char>(c - 'A' + 'a');
    return texte;
}

std::string CreationTables() {
    std::string sql = "CREATE TABLE qso (numero INTEGER PRIMARY KEY";
    for (const DescriptionChamp& d : kChamps)
        sql += ", " + Minuscules(NomChamp(d.champ)) + " TEXT NOT NULL";
    for (const Colonne& c : kColonnes)
        sql.append(", ").append(c.nom).append(" ").append(c.type);
    return sql +
           ", octets BLOB NOT NULL);"
           "CREATE TABLE departement (code TEXT PRIMARY KEY, nom TEXT NOT NULL) WITHOUT ROWID;"
           "CREATE TABLE source (chemin TEXT, contacts INTEGER, station TEXT, fait_le TEXT,"
           " version TEXT, dates_illisibles INTEGER);";
}

// Behind the rows: an index that grows with them costs several times as much.
constexpr std::string_view kIndex = R"(
CREATE INDEX qso_csgn ON qso (csgn);
CREATE INDEX qso_date ON qso (date, debut);
CREATE INDEX qso_bande ON qso (bande, mode_adif);
CREATE INDEX qso_departement ON qso (departement);
CREATE INDEX qso_carre ON qso (carre);
CREATE INDEX qso_ma_qsl ON qso (ma_qsl);
CREATE INDEX qso_sa_qsl ON qso (sa_qsl);
)";

constexpr std::string_view kVues = R"(
CREATE VIEW par_station AS SELECT csgn AS indicatif, count(*) AS contacts, min(date) AS premier,
 max(date) AS dernier, sum(sa_qsl = 'faite') AS confirmes FROM qso GROUP BY csgn;
CREATE VIEW par_bande AS SELECT bande, count(*) AS contacts, count(DISTINCT csgn) AS stations,
 sum(sa_qsl = 'faite') AS confirmes FROM qso GROUP BY bande;
CREATE VIEW par_mode AS SELECT mode_adif AS mode, sous_mode, count(*) AS contacts,
 sum(sa_qsl = 'faite') AS confirmes FROM qso GROUP BY mode_adif, sous_mode;
CREATE VIEW par_annee AS SELECT annee, count(*) AS contacts, count(DISTINCT csgn) AS stations,
 sum(sa_qsl = 'faite') AS confirmes FROM qso GROUP BY annee;
CREATE VIEW par_departement AS SELECT d.code, d.nom, count(q.code) AS contacts,
 CASE WHEN count(q.code) = 0 THEN 'jamais' WHEN sum(q.sa_qsl = 'faite') > 0 THEN 'confirmé'
 ELSE 'contacté' END AS etat FROM departement d LEFT JOIN
 (SELECT CASE WHEN departement IN ('2A', '2B') THEN '20' ELSE departement END AS code, sa_qsl
 FROM qso WHERE departement IS NOT NULL) q ON q.code = d.code GROUP BY d.code;
CREATE VIEW par_carre AS SELECT carre, count(*) AS contacts, max(km) AS km,
 sum(sa_qsl = 'faite') AS confirmes FROM qso WHERE carre IS NOT NULL GROUP BY carre;
CREATE VIEW qsl_a_envoyer AS SELECT * FROM qso WHERE ma_qsl = '' ORDER BY sa_qsl = 'faite' DESC,
 numero;
CREATE VIEW qsl_en_cours AS SELECT * FROM qso WHERE ma_qsl = 'en cours';
CREATE VIEW qsl_envoyees AS SELECT * FROM qso WHERE ma_qsl = 'faite';
CREATE VIEW qsl_recues AS SELECT * FROM qso WHERE sa_qsl = 'faite';
CREATE VIEW dates_illisibles AS SELECT * FROM qso WHERE date IS NULL;
)";

void LierValeur(Requete& requete, int place, const Valeur& valeur) {
    if (const auto* texte = std::get_if<std::string>(&valeur))
        requete.Lier(place, *texte);
    else if (const auto* entier = std::get_if<std::int64_t>(&valeur))
        requete.Lier(place, *entier);
    else if (const auto* reel = std::get_if<double>(&valeur))
        requete.Lier(place, *reel);
    else
        requete.LierRien(place);
}

void RemplirQso(BaseOuverte& base, const CahierLu& cahier, BilanSortie& bilan) {
    constexpr std::size_t kNbColonnes = 1 + kNbChamps + kColonnes.size() + 1;
    std::string sql = "INSERT INTO qso VALUES (?";
    for (std::size_t i = 1; i < kNbColonnes; ++i)
        sql += ",?";
    Requete requete(base, sql + ")");
    std::array<std::string, kNbChamps> textes;
    std::array<Valeur, kColonnes.size()> valeurs;
    for (const QsoRecord& fiche : cahier.fiches) {
        const Ligne ligne{fiche, ComprendreFiche(fiche), MesurerContact(fiche),
                          RelevementDe(fiche)};
        bilan.sansDate += ligne.sens.date ? 0 : 1;
        int place = 0;
        requete.Lier(++place, static_cast<std::int64_t>(++bilan.contacts));
        for (std::size_t i = 0; i < kNbChamps; ++i) {
            textes[i] = TexteRogne(fiche, kChamps[i].champ);
            requete.Lier(++place, textes[i]);
        }
        for (std::size_t i = 0; i < kColonnes.size(); ++i) {
            valeurs[i] = kColonnes[i].valeur(ligne);
            LierValeur(requete, ++place, valeurs[i]);
        }
        requete.LierOctets(++place, {fiche.octets.data(), fiche.octets.size()});
        requete.Executer();
    }
}

void RemplirDepartements(BaseOuverte& base) {
    constexpr int kPremierOutreMer = 971;
    constexpr int kDernierOutreMer = 974;
    Requete requete(base, "INSERT INTO departement VALUES (?,?)");
    for (int numero = 1; numero <= kDernierOutreMer; ++numero) {
        if (numero > 95 && numero < kPremierOutreMer)
            continue;
        const std::string code =
            numero < 10 ? "0" + std::to_string(numero) : std::to_string(numero);
        requete.Lier(1, code);
        requete.Lier(2, Rogner(NomDepartement(code)));
        requete.Executer();
    }
}

void RemplirSource(BaseOuverte& base, const DemandeBase& demande, const BilanSortie& bilan) {
    Requete requete(base, "INSERT INTO source VALUES (?,?,?,?,?,?)");
    std::error_code erreur;
    const std::string chemin = TexteChemin(fs::absolute(demande.cahier, erreur));
    requete.Lier(1, chemin);
    requete.Lier(2, static_cast<std::int64_t>(bilan.contacts));
    requete.Lier(3, demande.indicatif);
    requete.Lier(4, demande.creation);
    requete.Lier(5, std::string_view{ORVALIS_VERSION});
    requete.Lier(6, static_cast<std::int64_t>(bilan.sansDate));
    requete.Executer();
}

// A former base that a program is at work on, and a file that is no base, stay.
void RefuserAncienne(const fs::path& cible) {
    for (const char* suite : {"-journal", "-wal", "-shm"})
        if (std::error_code erreur; fs::exists(fs::path(cible) += suite, erreur))
            throw RefusEchange("Un autre programme travaille sur la base « " + TexteChemin(cible) +
                               " » : fermez-le d'abord.");
    std::error_code erreur;
    if (!fs::is_regular_file(cible, erreur))
        return;
    constexpr std::string_view kDebut = "SQLite format 3";
    std::array<char, kDebut.size()> debut{};
    const Fichier fichier(cible, ModeFichier::Lecture);
    const std::size_t n = fichier.Lire(0, debut);
    if (n > 0 && std::string_view{debut.data(), n} != kDebut)
        throw RefusEchange("« " + TexteChemin(cible) +
                           " » n'est pas une base : ce fichier n'est pas "
                           "remplacé.");
}

} // namespace

BilanSortie FaireBase(const DemandeBase& demande) {
    RefuserCible(demande.cible, demande.proteges);
    RefuserCible(demande.cible, {&demande.cahier, 1});
    const CahierLu cahier = LireCahierEntier(demande.cahier);
    PlaceNeuve place(demande.cible, Ancien::Remplace);
    RefuserAncienne(place.Cible());
    BilanSortie bilan{0, 0, cahier.finPresente, cahier.longueurEntiere};
    BaseOuverte base(place.Provisoire(), demande.cible);
    // The file is nothing until it is whole, so it needs no journal of its own.
    base.Executer("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
                  "PRAGMA locking_mode = EXCLUSIVE; BEGIN;" +
                  CreationTables());
    RemplirQso(base, cahier, bilan);
    RemplirDepartements(base);
    RemplirSource(base, demande, bilan);
    base.Executer(std::string{kIndex}.append(kVues).append("COMMIT;"));
    base.Fermer();
    try {
        Fichier fichier(place.Provisoire(), ModeFichier::LectureEcriture);
        fichier.Synchroniser();
    } catch (const Erreur& echec) {
        throw place.Nommer(echec);
    }
    RefuserAncienne(place.Cible());
    place.Prendre();
    return bilan;
}

} // namespace orvalis
