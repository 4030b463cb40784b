#include "ui/flux/flux_navigation.h"

#include "core/chemins.h"
#include "ui/bureau/systeme.h"
#include "ui/bureau/texte_qt.h"
#include "ui/flux/conduite.h"
#include "ui/flux/flux_modification.h"

#include <algorithm>
#include <string>
#include <vector>

namespace orvalis {
namespace {

std::int32_t NbPages(const Cahier& cahier) {
    return CalculerPages(std::min(cahier.nbFiches, kDerniereListable));
}

int DerniereLigne(const Plateau& p) {
    return static_cast<int>(p.ecran.liste.contenu->lignes.size()) - 1;
}

// A page move selects the line where the operator goes on.
void AllerPage(Plateau& p, std::int32_t page, bool derniereLigne) {
    MontrerPage(p, page);
    ChoisirLigne(p, derniereLigne ? DerniereLigne(p) : 0);
}

// The name of the open logbook, how many contacts it holds, and whether it is only looked at. A
// sort may still rewrite it unless its file is protected.
std::string NomMontre(const Session& s) {
    const bool protege = s.cahier.fichier.Support().EstProtege();
    const std::string nom =
        s.cahier.lectureSeule ? s.cahier.autre + (protege ? " (lecture seule)" : " (consultation)")
                              : s.station.indicatif;
    return nom + " : " + std::to_string(s.cahier.nbFiches) + " contact" +
           (s.cahier.nbFiches < 2 ? "" : "s");
}

// Another logbook that is named like the station's own is told from it by its folder.
std::string DossierMontre(const Session& s) {
    return s.cahier.autre == s.station.indicatif && !s.cahier.EstLeNotre()
               ? "Autre cahier, du dossier " + TexteChemin(s.cahier.chemin.parent_path())
               : std::string();
}

std::shared_ptr<const ContenuPage> LirePage(const Cahier& cahier, const PlagePage& plage) {
    const auto n = static_cast<std::size_t>(std::max(0, plage.derniere - plage.premiere + 1));
    std::vector<QsoRecord> fiches(n);
    static_cast<void>(cahier.fichier.Lire(plage.premiere, fiches));
    auto contenu = std::make_shared<ContenuPage>();
    for (std::size_t i = 0; i < n && !EstFinDeLog(fiches[i]); ++i) {
        const NumeroFiche k = plage.premiere + static_cast<std::int32_t>(i);
        contenu->lignes.push_back(LigneListe(k, fiches[i]));
        contenu->rangees.push_back({k, CellulesDeFiche(k, fiches[i])});
    }
    return contenu;
}

} // namespace

void MontrerPage(Plateau& p, std::int32_t page) {
    const Cahier& cahier = p.session.cahier;
    const PlagePage plage = CalculerPlage(page, cahier.nbFiches);
    ListeDuCahier& liste = p.ecran.liste;
    liste.contenu = LirePage(cahier, plage);
    liste.page = page;
    liste.nbPages = NbPages(cahier);
    liste.nbFiches = cahier.nbFiches;
    // Kept on purpose, for the operators: on the last page the bar stands at N, also where that is
    // beyond what can be listed: those contacts lie behind the last page.
    liste.defilement = page == liste.nbPages ? cahier.nbFiches : page * kFichesParPage;
    liste.nom = NomMontre(p.session);
    liste.dossier = DossierMontre(p.session);
    liste.choisie = -1;
    liste.marquee = p.session.carte.ficheCourante;
    p.session.page = {page, plage.premiere, plage.derniere};
}

// The list itself is asked: a blank page printed leaves the first record of the page at 0.
int LigneDeFiche(const Plateau& p, NumeroFiche k) {
    const std::vector<RangeePage>& rangees = p.ecran.liste.contenu->rangees;
    const auto ici = std::find_if(rangees.begin(), rangees.end(),
                                  [k](const RangeePage& rangee) { return rangee.numero == k; });
    return ici == rangees.end() ? -1 : static_cast<int>(ici - rangees.begin());
}

void ChoisirLigne(Plateau& p, int ligne) {
    p.ecran.liste.choisie = ligne;
    const std::vector<RangeePage>& rangees = p.ecran.liste.contenu->rangees;
    if (ligne >= 0 && static_cast<std::size_t>(ligne) < rangees.size())
        ChoisirFiche(p, rangees[static_cast<std::size_t>(ligne)].numero);
}

void ChoisirRangee(Plateau& p, NumeroFiche k) {
    if (!p.session.carte.saisie.EnSaisie)
        ChoisirLigne(p, LigneDeFiche(p, k));
}

void RelireCahier(Plateau& p, std::int32_t page) {
    CompterFiches(p.session.cahier);
    MontrerPage(p, std::min(page, NbPages(p.session.cahier)));
    if (DerniereLigne(p) >= 0) {
        ChoisirLigne(p, DerniereLigne(p));
    } else if (!p.session.carte.saisie.EnSaisie) {
        AbandonnerModification(p);
        ViderCarte(p.session.carte);
        p.ecran.activeRech = false;
    }
}

void DireFicheChangee(Plateau& p) {
    const NumeroFiche k = p.session.carte.ficheCourante;
    p.ecran.contacts.montree = false; // its numbers no longer hold
    RelireCahier(p, PageDeFiche(k));
    if (const int ligne = LigneDeFiche(p, k); ligne >= 0)
        ChoisirLigne(p, ligne);
    p.ecran.recherche.montre = p.session.cahier.nbFiches != 0;
    p.systeme.Avertir(
        &p.fenetre,
        QStringLiteral("Un autre programme a modifié le cahier\u00A0: la fiche N° %1 n'est plus "
                       "celle qui était affichée. Rien n'a été changé\u00A0; vérifiez la fiche "
                       "affichée maintenant avant de recommencer.")
            .arg(k.Valeur()));
}

void RelirePage(Plateau& p) {
    const int ligne = p.ecran.liste.choisie;
    MontrerPage(p, std::min(p.session.page.numero, NbPages(p.session.cahier)));
    if (ligne <= DerniereLigne(p))
        p.ecran.liste.choisie = ligne;
}

void ChoisirFiche(Plateau& p, NumeroFiche k) {
    if (p.session.carte.saisie.EnSaisie || !p.session.cahier.Contient(k))
        return;
    AbandonnerModification(p);
    p.session.carte.ficheCourante = k;
    AfficherFiche(p);
}

void MontrerContact(Plateau& p, NumeroFiche k) {
    const bool libre = !p.session.carte.EnEdition();
    ChoisirFiche(p, k);
    if (!libre || p.session.carte.ficheCourante != k || k.Valeur() > kDerniereListable)
        return;
    if (const std::int32_t page = PageDeFiche(k); page != p.session.page.numero)
        MontrerPage(p, page);
    p.ecran.liste.choisie = LigneDeFiche(p, k);
}

void AfficherFiche(Plateau& p) {
    Carte& carte = p.session.carte;
    if (carte.saisie.EnSaisie)
        return;
    p.ecran.liste.marquee = carte.ficheCourante;
    if (carte.ficheCourante < kPremiereFiche)
        return;
    LireFiche(carte, p.session.cahier, carte.ficheCourante);
    MontrerLabels(carte, carte.ficheCourante);
    if (!carte.zones[Boite::Indicatif].empty())
        p.ecran.activeRech = !p.ecran.contacts.montree;
}

void RendreListe(Plateau& p) {
    p.ecran.liste.active = !p.ecran.jumelage.montre && !p.feuille.vue.panneau;
}

void SurBoutonPage(Plateau& p, BoutonPage bouton) {
    const std::int32_t page = p.session.page.numero;
    switch (bouton) {
    case BoutonPage::Premiere:
        AllerPage(p, 1, false);
        break;
    case BoutonPage::Precedente:
        if (page > 1)
            AllerPage(p, page - 1, false);
        break;
    case BoutonPage::Suivante:
        if (page < NbPages(p.session.cahier))
            MontrerPage(p, page + 1);
        break;
    case BoutonPage::Derniere:
        MontrerPage(p, NbPages(p.session.cahier));
        break;
    }
}

void SurDefilement(Plateau& p, std::int32_t valeur) {
    p.ecran.liste.defilement = valeur;
    const std::int32_t page = CalculerPages(std::min(valeur, kDerniereListable));
    if (page != p.session.page.numero)
        MontrerPage(p, page);
}

bool SurToucheListe(Plateau& p, ToucheListe touche) {
    const auto mouvement = PageDeTouche(touche, p.session.carte.ficheCourante,
                                        p.ecran.liste.choisie, NbPages(p.session.cahier));
    if (mouvement)
        AllerPage(p, mouvement->page, mouvement->derniereLigne);
    return mouvement.has_value();
}

} // namespace orvalis
