#include "ui/flux/flux_qsl.h"

#include "core/dates.h"
#include "core/dossier.h"
#include "core/erreurs.h"
#include "core/texte.h"
#include "print/etiquette.h"
#include "qsl/vie_etiquette.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/carte/conseil.h"
#include "ui/carte/donnees_etiquette.h"
#include "ui/carte/entree_panneaux.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_impression.h"
#include "ui/flux/flux_modification.h"
#include "ui/flux/flux_navigation.h"

namespace orvalis {
namespace {

// Whether what was done began by counting anew a logbook that another program had changed.
bool Recompte(const Plateau& p) {
    return p.ecran.liste.nbFiches != p.session.cahier.nbFiches;
}

// The page on show and the card, read again; the contact that was chosen stays chosen while there
// is one of its number on the page.
void Rafraichir(Plateau& p) {
    if (!Recompte(p)) {
        RelirePage(p);
        return AfficherFiche(p);
    }
    const NumeroFiche k = p.session.carte.ficheCourante;
    RelireCahier(p, p.session.page.numero);
    if (LigneDeFiche(p, k) >= 0)
        ChoisirRangee(p, k);
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
        if (Recompte(p))
            Rafraichir(p);
        else if (reponse.marque)
            AfficherFiche(p);
    });
    if (!reponse.message.empty())
        p.systeme.Avertir(&p.fenetre, Q(reponse.message));
    return reponse;
}

void DonnerFoyerBoite(Plateau& p, std::size_t boite) {
    DonnerFoyerEtiquette(p.session.carte, p.ecran, p.session.station, boite);
}

void DonnerFoyerChoix(Plateau& p, Place place) {
    DonnerFoyer(p, {Cible::ChoixEtiquette, place.Valeur()});
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
    static_cast<void>(Imprimer(p, "Étiquettes vierges imprimées", [&p](Imprimante& imprimante) {
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
            DonnerFoyer(p, FoyerDeLaVoie(p.feuille));
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

void SurEntreeEtiquette(Plateau& p, std::size_t boite) {
    EntrerEtiquette(p.feuille, p.session.carte, p.ecran, p.session.station, boite);
}

void SurVoie(Plateau& p, VoieQSL voie) {
    EntrerVoie(p.feuille, p.session.carte, p.ecran, p.session.station, voie);
}

void SurBtIndicatifQSL(Plateau& p) {
    if (!p.feuille.fraiche || p.feuille.vue.controle)
        return;
    SaisirBoiteEtiquette(p.feuille, kBoiteLigne1, p.session.station.indicatif);
    DonnerFoyerBoite(p, kBoiteLigne1);
}

void SurBtValidQSL(Plateau& p) {
    if (!Repondre(p, [&p] { return ValiderEtiquette(p.session.cahier, p.feuille); }).fait)
        return;
    const Place place = p.feuille.etiquetteEnCours;
    Annoncer(p.ecran, "Étiquette " + std::to_string(place.Valeur()) + " préparée" +
                          std::string{kDeuxPoints} +
                          p.feuille.indicatifs[EtatFeuille::Rang(place)]);
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
    const auto nb = static_cast<std::int64_t>(etiquettes.size());
    const std::string fait = Compte(nb, "étiquette") + (nb < 2 ? " imprimée" : " imprimées");
    if (!Imprimer(p, fait, [&](Imprimante& imp) { ImprimerFeuille(imp, etiquettes, p.enTete); }))
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
