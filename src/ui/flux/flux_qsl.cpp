#include "ui/flux/flux_qsl.h"

#include "core/dates.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/texte.h"
#include "print/etiquette.h"
#include "qsl/vie_etiquette.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/donnees_etiquette.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_impression.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

namespace orvalis {
namespace {

// The page on show and the card, read again; the line that was selected stays selected.
void Rafraichir(Plateau& p) {
    const int ligne = p.ecran.liste.choisie;
    MontrerPage(p, p.session.page.numero);
    p.ecran.liste.choisie = ligne;
    AfficherFiche(p);
}

// Runs what may open or close the panel: list and focus follow it.
void AgirSurLaFeuille(Plateau& p, const std::function<void()>& action) {
    const bool montree = p.feuille.vue.panneau;
    action();
    if (p.feuille.vue.panneau == montree)
        return;
    LacherFoyer(p);
    p.ecran.liste.active = montree;
    if (montree) {
        Rafraichir(p);
        DonnerFoyer(p, {Cible::Liste});
    }
}

// The same for an action that answers: what it did to contacts shows, what it says is told.
ReponseQSL Repondre(Plateau& p, const std::function<ReponseQSL()>& action) {
    ReponseQSL reponse;
    AgirSurLaFeuille(p, [&] {
        reponse = action();
        if (reponse.marque)
            AfficherFiche(p);
    });
    if (!reponse.message.empty())
        p.systeme.Avertir(&p.fenetre, Q(reponse.message));
    return reponse;
}

void DonnerFoyerBoite(Plateau& p, std::size_t boite) {
    const Foyer cible{Cible::BoiteEtiquette, static_cast<int>(boite)};
    DonnerFoyer(p, cible);
    p.ecran.foyer.selection = cible;
}

void DonnerFoyerChoix(Plateau& p, Place place) {
    DonnerFoyer(p, {Cible::ChoixEtiquette, place.Valeur()});
}

// None when the button is hidden.
void DonnerFoyerValider(Plateau& p) {
    if (p.feuille.vue.valider)
        DonnerFoyer(p, {Cible::ValiderEtiquette});
}

// A logbook without contacts was opened without its sheet. Returns whether there is one.
bool ChargerAuBesoin(Plateau& p) {
    if (!p.feuille.fichier.EstOuvert())
        ChargerFeuille(p);
    return p.feuille.fichier.EstOuvert();
}

Place PremierePreparee(const EtatFeuille& feuille) {
    const std::vector<Place> places = EtiquettesAImprimer(feuille);
    return places.empty() ? kPremierePlace : places.front();
}

} // namespace

void ChargerFeuille(Plateau& p) {
    try {
        ChargerFeuilleQSL(p.feuille, DossierProgramme(p.session.station.lecteur));
    } catch (const Erreur& echec) {
        // No reason to keep the operator from the logbook.
        p.feuille.fichier.Fermer();
        p.systeme.Avertir(&p.fenetre, Q(echec.what()));
    }
}

void GererFeuille(Plateau& p) {
    if (!ChargerAuBesoin(p))
        return;
    Repondre(p, [&p] { return MontrerFeuille(p.feuille); });
    DonnerFoyerChoix(p, PremierePreparee(p.feuille));
}

void ImprimerEtiquettesVierges(Plateau& p) {
    static_cast<void>(Imprimer(p, [&p](Imprimante& imprimante) {
        ImprimerFeuilleVierge(imprimante, p.session.station.indicatif, p.enTete);
    }));
}

void CliquerMaQsl(Plateau& p) {
    Session& s = p.session;
    if (!Rogner(s.carte.Texte(Boite::MaQsl)).empty() || !ChargerAuBesoin(p))
        return;
    if (!VerifierFiche(s.cahier, s.carte.ficheCourante, s.carte.tampon))
        return DireFicheChangee(p);
    // The press has begun a modification by hand, which is not what it turns out to be.
    SuiteClic suite = SuiteClic::Ordinaire;
    Repondre(p, [&] {
        const ReponseClic clic = PreparerEtiquette(s.cahier, p.feuille, s.carte.ficheCourante);
        suite = clic.suite;
        if (suite != SuiteClic::Ordinaire) {
            LacherFoyer(p);
            AbandonnerModification(p);
        }
        return clic.reponse;
    });
    if (suite == SuiteClic::Retabli) {
        Rafraichir(p);
        DonnerFoyer(p, {Cible::Liste});
    } else if (suite == SuiteClic::Panneau) {
        if (p.feuille.boites[kBoiteLigne1].empty())
            DonnerFoyerBoite(p, kBoiteLigne1);
        else
            DonnerFoyer(p, {Cible::VoieEtiquette});
    }
}

void SurChoix(Plateau& p, Place place) {
    CliquerChoix(p.feuille, place);
    if (p.feuille.vue.laisser && p.feuille.etiquetteEnCours == place)
        DonnerFoyer(p, {Cible::LaisserEtiquette});
}

void SurTag(Plateau& p, Place place) {
    CliquerTag(p.feuille, place);
    DonnerFoyerBoite(p, kBoiteIndicatif);
}

void SurSaisieEtiquette(Plateau& p, std::size_t boite, const std::string& texte) {
    SaisirBoiteEtiquette(p.feuille, boite, texte);
    if (boite == kBoiteIndicatif)
        SaisirBoiteEtiquette(p.feuille, kBoiteRappel, texte);
}

// Enter goes on to the next box, by way of the route, and ends on the button that it shows.
void SurEntreeEtiquette(Plateau& p, std::size_t boite) {
    EntrerBoiteEtiquette(p.feuille);
    if (p.feuille.fraiche && boite == kBoiteNumeroFiche)
        DonnerFoyerBoite(p, kBoiteIndicatif);
    else if (!p.feuille.fraiche || boite >= kBoiteManager)
        DonnerFoyerValider(p);
    else if (boite == kBoiteLigne2)
        DonnerFoyer(p, {Cible::VoieEtiquette});
    else
        DonnerFoyerBoite(p, boite + 1);
}

void SurVoie(Plateau& p, VoieQSL voie) {
    const bool confirmee = p.feuille.voie == voie;
    ChoisirVoie(p.feuille, voie);
    if (confirmee)
        DonnerFoyerValider(p);
}

void SurBtIndicatifQSL(Plateau& p) {
    if (!p.feuille.fraiche || p.feuille.vue.controle)
        return;
    SaisirBoiteEtiquette(p.feuille, kBoiteLigne1, p.session.station.indicatif);
    DonnerFoyerBoite(p, kBoiteLigne1);
}

void SurBtValidQSL(Plateau& p) {
    Repondre(p, [&p] { return ValiderEtiquette(p.session.cahier, p.feuille); });
}

void SurBtDelQSL(Plateau& p) {
    const Place place = p.feuille.etiquetteEnCours;
    Repondre(p, [&p] { return SupprimerEtiquette(p.session.cahier, p.feuille); });
    if (!p.feuille.vue.supprimer && place != kAucunePlace)
        DonnerFoyerChoix(p, place);
}

void SurBtLeaveQSL(Plateau& p) {
    const Place place = p.feuille.etiquetteEnCours;
    LaisserEtiquette(p.feuille);
    if (place != kAucunePlace)
        DonnerFoyerChoix(p, place);
}

void SurBtQuitQSL(Plateau& p) {
    AgirSurLaFeuille(p, [&p] { QuitterFeuille(p.feuille); });
}

void SurBtRestore(Plateau& p) {
    RestaurerFeuille(p.feuille);
    DonnerFoyerChoix(p, kPremierePlace);
}

void SurBtPrintQSL(Plateau& p) {
    const Session& s = p.session;
    const auto autoriser = [&] {
        return AutoriserImpression(s.cahier, p.feuille, s.station.indicatif);
    };
    if (!Repondre(p, autoriser).fait) {
        if (!p.feuille.vue.imprimer)
            DonnerFoyerChoix(p, PremierePreparee(p.feuille));
        return;
    }
    std::vector<EtiquettePlacee> etiquettes;
    for (const Place place : EtiquettesAImprimer(p.feuille))
        etiquettes.push_back({place, DonneesDeEtiquette(LireEnregistrement(p.feuille, place))});
    if (!Imprimer(p, [&](Imprimante& imp) { ImprimerFeuille(imp, etiquettes, p.enTete); }))
        return;
    DemanderControle(p.feuille);
    DonnerFoyer(p, {Cible::Revoir});
}

void ConfirmerImpression(Plateau& p) {
    const std::string aujourdhui = DateCourte(p.systeme.Maintenant());
    if (Repondre(p, [&] { return ToutEstParfait(p.session.cahier, p.feuille, aujourdhui); }).fait)
        return;
    if (p.feuille.vue.controle) // the sheet could not be opened: he may try again
        DonnerFoyer(p, {Cible::Revoir});
    else
        DonnerFoyerChoix(p, PremierePreparee(p.feuille));
}

void RevoirImpression(Plateau& p) {
    RevoirEtiquettes(p.feuille);
    DonnerFoyerChoix(p, PremierePreparee(p.feuille));
}

} // namespace orvalis
