#include "ui/carte/conseil.h"

#include "core/texte.h"
#include "qsl/contact_etiquette.h"
#include "ui/carte/conditions.h"
#include "ui/carte/saisie.h"

#include <array>

namespace orvalis {
namespace {

constexpr std::string_view kPasEnregistre = "Nouveau contact, pas encore enregistré";

std::string Age(int jours) {
    return jours == 0 ? "il y a moins de 24 heures" : "il y a " + Compte(jours, "jour");
}

// The age of the newest backup of our own logbook and what came since; empty on another one.
std::string DireSauvegarde(const Session& session, const Ecran& ecran) {
    const EtatSauvegarde& sauvegarde = ecran.sauvegarde;
    if (!sauvegarde.connu || !session.cahier.EstLeNotre() || session.cahier.nbFiches == 0)
        return {};
    if (!sauvegarde.derniere)
        return "Aucune sauvegarde de ce cahier dans VekSave";
    const std::int32_t depuis = session.cahier.nbFiches - sauvegarde.derniere->nbFiches;
    return "Dernière sauvegarde " + Age(sauvegarde.jours) + std::string{kPointVirgule} +
           (depuis <= 0 ? "aucun contact" : Compte(depuis, "contact")) + " depuis";
}

// A command that nothing undoes.
struct AvantDAgir {
    std::string_view nom;
    std::string_view danger;
};
constexpr std::array<AvantDAgir, 3> kAvantDAgir = {{
    {"MnuClasser", "Classer réécrit le cahier"},
    {"MnuJumeler", "Rien ne défait un jumelage"},
    {"BtPjumeler", "Rien ne défait un jumelage"},
}};

// The danger, the advice to save first unless that was just done, and how old the last backup is.
std::string DireDanger(const AvantDAgir& avant, const Session& session, const Ecran& ecran) {
    const bool sauve = ecran.jumelage.montre && ecran.jumelage.sauvegardeFaite;
    const std::string sauvegarde = DireSauvegarde(session, ecran);
    return std::string{avant.danger} + (sauve ? "" : ", sauvegardez d'abord") +
           (sauvegarde.empty() ? "" : ". " + sauvegarde);
}

// A button that waits for something that is no condition of its command.
struct Attente {
    std::string_view nom;
    bool attend = false;
    std::string_view mots;
};

// Why what the pointer stands on is grey; of a command that is not, what to do before.
std::string DireDesignee(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    const Designation& d = ecran.designee;
    if (d.nom.empty() || d.annonce != ecran.annonce.rang) // what it did says more
        return {};
    const std::string nom = d.legende.empty() ? "" : d.legende + std::string{kDeuxPoints};
    const unsigned remplies = ConditionsRemplies(session, ecran, feuille);
    const bool question = ecran.question && !ecran.menuActif;
    // What a list greyed may stay grey while another waits in its place.
    const std::string_view fermez = ecran.contacts.montree
                                        ? "fermez d'abord la liste des contacts (Alt+L)"
                                        : "répondez d'abord Oui ou Non";
    const std::array<Attente, 9> attentes = {{
        {"BtNewQSO", question, "répondez d'abord Oui ou Non"},
        {"BtKillFiche", question, "répondez d'abord Oui ou Non"},
        {"BtFermerLog", question, "répondez d'abord Oui ou Non"},
        {"BtNewQSO", ecran.contacts.boutonsGrises, fermez},
        {"BtFermerLog", ecran.contacts.boutonsGrises, fermez},
        {"BtKillFiche", ecran.contacts.supprimerGrise, fermez},
        {"BtEnrSuivant", !ecran.suivantArme, "validez d'abord le RST reçu"},
        {"BtEnrAnnuler", !ecran.annulerActif, "validez d'abord un indicatif"},
        {"BtPjSauvegarder", ecran.jumelage.sauvegardeFaite, "la sauvegarde est faite"},
    }};
    if (const std::string_view raison = RaisonDuRefus(d.conditions, remplies); !raison.empty())
        return nom + std::string{raison};
    for (const Attente& attente : attentes)
        if (attente.nom == d.nom && attente.attend)
            return nom + std::string{attente.mots};
    for (const AvantDAgir& avant : kAvantDAgir)
        if (avant.nom == d.nom)
            return DireDanger(avant, session, ecran);
    return {};
}

std::string DireEtat(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    const Carte& carte = session.carte;
    if (std::string designee = DireDesignee(session, ecran, feuille); !designee.empty())
        return designee;
    if (!ecran.annonce.texte.empty())
        return ecran.annonce.texte;
    if (carte.saisie.EnSaisie)
        return carte.zones[Boite::Indicatif].empty() ? "" : ecran.dejaContacte;
    if (ecran.jumelage.montre)
        return DireDanger(kAvantDAgir.back(), session, ecran);
    if (carte.EnEdition() || ecran.question || feuille.vue.panneau || ecran.classer.montre)
        return {};
    return DireSauvegarde(session, ecran);
}

} // namespace

Conseil Conseiller(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    if (ecran.temoinDemarrage != 0)
        return {};
    const Foyer& ici = ecran.foyer.ici;
    const Phrase p = ecran.gel ? Phrase{} : DireEntree(session, ecran, feuille);
    Conseil conseil;
    conseil.etat = DireEtat(session, ecran, feuille);
    if (!p.texte.empty())
        conseil.entree = "Entrée" + std::string{kDeuxPoints} + p.texte;
    conseil.cle = std::to_string(static_cast<int>(ici.cible)) + '/' + std::to_string(ici.numero) +
                  '/' + std::to_string(ecran.annonce.rang) + '/' + ecran.designee.nom + '/' + p.cle;
    return conseil;
}

void Annoncer(Ecran& ecran, std::string texte) {
    ecran.annonce.texte = std::move(texte);
    ++ecran.annonce.rang;
}

std::string Bandeau(const Session& session, const Ecran& ecran) {
    const EtatSaisie& saisie = session.carte.saisie;
    if (!saisie.EnSaisie)
        return {};
    const Verdict verdict =
        FinirContact(session.carte, session.station, FinDeSaisie::Terminer, ecran.suivantArme, {})
            .verdict;
    std::string bandeau{kPasEnregistre};
    if (verdict == Verdict::Enregistrer)
        bandeau.append(kDeuxPoints).append("Terminer l'enregistre");
    else if (verdict == Verdict::IndicatifManquant)
        bandeau.append(kDeuxPoints).append("il faut un indicatif");
    else if (verdict == Verdict::RienAEcrire && saisie.QsoCommence)
        bandeau.append(kDeuxPoints).append("Terminer l'abandonne");
    return bandeau;
}

std::optional<InfoJointe> ChercherInfoJointe(const Carte& carte) {
    if (!carte.saisie.EnSaisie)
        return std::nullopt;
    const Zones rangees = ZonesDeFiche(FicheDesZones(carte.zones));
    for (const Boite boite : {Boite::Manager, Boite::Remarque})
        if (carte.zones[boite].empty() && !rangees[boite].empty())
            return InfoJointe{boite, rangees[boite]};
    return std::nullopt;
}

Phrase DireInfoJointe(const InfoJointe& jointe) {
    Phrase p;
    p.Dire(jointe.boite == Boite::Manager ? "le manager " : "la remarque ").Citer(jointe.texte);
    p.Dire(" d'un contact précédent");
    return p;
}

std::string DireDejaContacte(const StationContactee& station) {
    if (station.fois == 0)
        return "Première fois";
    const auto champ = [&station](Champ c) { return TexteRogne(station.derniere, c); };
    std::string dit = station.fois == 1 ? "Déjà contacté une fois"
                                        : "Déjà contacté " + EcrireNombre(station.fois) + " fois";
    if (const std::string date = champ(Champ::DQSO); !date.empty())
        dit += (station.fois == 1 ? ", le " : ", la dernière le ") + date;
    if (const std::string frequence = champ(Champ::FREQ); !frequence.empty())
        dit += (station.fois == 1 || !champ(Champ::DQSO).empty() ? " sur " : ", la dernière sur ") +
               frequence;
    const std::string nom = champ(Champ::SNOM);
    const std::string ville = NomPropre(champ(Champ::SQTH));
    if (!nom.empty() || !ville.empty())
        dit +=
            std::string{kPointVirgule} + nom + (nom.empty() || ville.empty() ? "" : ", ") + ville;
    const std::string qsl = champ(Champ::MQSL);
    if (!qsl.empty())
        dit += std::string{kPointVirgule} + (qsl == kEnCours ? "QSL en cours" : "QSL envoyée");
    return dit;
}

std::string Compte(std::int64_t n, std::string_view mot) {
    return EcrireNombre(n) + std::string{kInsecable} + std::string{mot} + (n < 2 ? "" : "s");
}

} // namespace orvalis
