#include "ui/flux_navigation.h"

#include "core/carte.h"
#include "core/fiches.h"
#include "core/page_texte.h"
#include "ui/feuille_log.h"
#include "ui/flux_modification.h"
#include "ui/panneau_contacts.h"
#include "ui/panneau_enrs.h"
#include "ui/panneau_fiche.h"
#include "ui/texte_qt.h"

#include <algorithm>
#include <vector>

namespace orvalis {
namespace {

std::int32_t NbPages(const Session& session) {
    return CalculerPages(std::min(session.nbFiches, kDerniereListable));
}

// A page move selects the line where the operator goes on.
void AllerPage(Plateau& p, std::int32_t page, bool derniereLigne) {
    MontrerPage(p, page);
    SelectionnerLigne(p, derniereLigne ? p.liste.NbLignes() - 1 : 0);
}

void ViderCarte(Plateau& p) {
    AbandonnerModification(p);
    p.session.zones = {};
    for (std::size_t i = 1; i <= kNbBoites; ++i)
        p.fiche.MontrerBoite(i, "");
    p.fiche.MontrerNumero("  Fiche N° 0  ");
    p.fiche.MontrerDistance("");
    p.fiche.MontrerAzimut("");
    p.fiche.MontrerDepartement("");
    p.fiche.MontrerActiveRech(false);
}

// The name of the open logbook, how many contacts it holds, and whether it is read-only.
void MontrerNomDuJournal(Plateau& p) {
    const Session& s = p.session;
    const QString nom =
        s.LectureSeule() ? Q(s.autreJournal) + QStringLiteral(" (lecture seule)") : Q(s.indicatif);
    p.liste.MontrerNom(nom + QStringLiteral(" : %1 contact%2")
                                 .arg(s.nbFiches)
                                 .arg(s.nbFiches < 2 ? QString() : QStringLiteral("s")));
}

} // namespace

void MontrerPage(Plateau& p, std::int32_t page) {
    Session& s = p.session;
    const PlagePage plage = CalculerPlage(page, s.nbFiches);
    const auto n = static_cast<std::size_t>(std::max(0, plage.derniere - plage.premiere + 1));
    std::vector<QsoRecord> fiches(n);
    static_cast<void>(s.journal.Lire(plage.premiere, fiches));
    std::vector<std::string> lignes;
    std::vector<RangeePage> rangees;
    for (std::size_t i = 0; i < n && !EstFinDeLog(fiches[i]); ++i) {
        const std::int32_t k = plage.premiere + static_cast<std::int32_t>(i);
        lignes.push_back(LigneListe(k, fiches[i]));
        rangees.push_back({k, CellulesDeFiche(k, fiches[i])});
    }
    s.pageAffichee = page;
    s.premiereAffichee = plage.premiere;
    p.liste.Remplir(lignes, page, NbPages(s));
    p.liste.ReglerDefilement(s.nbFiches, std::min(page * kFichesParPage, s.nbFiches));
    p.liste.ActiverPagination(s.nbFiches > kFichesParPage);
    p.page.Montrer(std::move(rangees));
    p.page.Marquer(s.ficheCourante);
}

// The list itself is asked: a blank page printed leaves the first record of the page at 0.
int LigneDeFiche(const Plateau& p, std::int32_t k) {
    const std::int32_t ligne = k - p.liste.NumeroDe(0);
    return ligne >= 0 && ligne < p.liste.NbLignes() ? ligne : -1;
}

void SelectionnerLigne(Plateau& p, int ligne) {
    p.liste.Selectionner(ligne);
    if (const std::int32_t k = p.liste.NumeroDe(ligne); k > 0)
        ChoisirFiche(p, k);
}

void RelireCahier(Plateau& p, std::int32_t page) {
    CompterFiches(p.session);
    MontrerPage(p, std::min(page, NbPages(p.session)));
    MontrerNomDuJournal(p);
    if (p.liste.NbLignes() > 0) {
        SelectionnerLigne(p, p.liste.NbLignes() - 1);
    } else if (!p.session.saisie.EnSaisie) {
        p.session.ficheCourante = 0;
        ViderCarte(p);
    }
}

void ChoisirFiche(Plateau& p, std::int32_t k) {
    if (p.session.saisie.EnSaisie || k < 1 || k > p.session.nbFiches)
        return;
    AbandonnerModification(p);
    p.session.ficheCourante = k;
    AfficherFiche(p);
}

void AfficherFiche(Plateau& p) {
    if (!p.enrs.isHidden())
        return;
    Session& s = p.session;
    const std::int32_t k = s.ficheCourante;
    p.page.Marquer(k);
    if (k < 1)
        return;
    LireFiche(s, k);
    for (std::size_t i = 1; i <= kNbBoites; ++i)
        p.fiche.MontrerBoite(i, s.zones[i]);
    const TextesCarte textes = TextesDeFiche(s, k);
    p.fiche.MontrerNumero(textes.numero);
    p.fiche.MontrerDistance(textes.distance);
    p.fiche.MontrerAzimut(textes.azimut);
    p.fiche.MontrerDepartement(textes.departement);
    if (textes.indicatifPresent)
        p.fiche.MontrerActiveRech(p.contacts.isHidden());
}

void SurBoutonPage(Plateau& p, BoutonPage bouton) {
    const std::int32_t page = p.session.pageAffichee;
    switch (bouton) {
    case BoutonPage::Premiere:
        AllerPage(p, 1, false);
        break;
    case BoutonPage::Precedente:
        if (page > 1)
            AllerPage(p, page - 1, false);
        break;
    case BoutonPage::Suivante:
        if (page < NbPages(p.session))
            MontrerPage(p, page + 1);
        break;
    case BoutonPage::Derniere:
        MontrerPage(p, NbPages(p.session));
        break;
    }
}

void SurDefilement(Plateau& p, int valeur) {
    const std::int32_t page = CalculerPages(std::min(valeur, kDerniereListable));
    if (page != p.session.pageAffichee)
        MontrerPage(p, page);
}

bool SurToucheListe(Plateau& p, ToucheListe touche) {
    const auto mouvement =
        PageDeTouche(touche, p.session.ficheCourante, p.liste.LigneChoisie(), NbPages(p.session));
    if (mouvement)
        AllerPage(p, mouvement->page, mouvement->derniereLigne);
    return mouvement.has_value();
}

} // namespace orvalis
