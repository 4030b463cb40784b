#include "echange/entree.h"

#include "echange/entree_champs.h"
#include "echange/sortie.h"

namespace orvalis {
namespace {

// Fields of the record that stand or fall together, since one field of the format makes several.
constexpr bool EstUneHeure(Champ champ) {
    return champ == Champ::DQSO || champ == Champ::HDEB || champ == Champ::HFIN;
}
constexpr bool Ensemble(Champ a, Champ b) {
    return a == b || (EstUneHeure(a) && EstUneHeure(b));
}

struct Exacts {
    QsoRecord fiche; ///< the record with our own fields in it
    ChampsSet presents;
};

// Our own fields over what the others gave; one that cannot be read is told.
Exacts PoserExacts(const ContactAdif& contact, Entree& e) {
    Exacts exacts{e.fiche, {}};
    for (const DescriptionChamp& d : kChamps) {
        const std::size_t i = NumeroZone(d.champ) - 1;
        if (contact.exacts[i].empty())
            continue;
        const auto octets = DecoderOctets(contact.exacts[i], d.largeur);
        if (octets) {
            octets->copy(exacts.fiche.octets.data() + d.decalage, d.largeur);
            exacts.presents.set(i);
        } else {
            e.notes.push_back({d.champ,
                               {std::string{kPrefixeOrvalis} + std::string{NomChamp(d.champ)},
                                contact.exacts[i], "illisible : les autres champs comptent"}});
        }
    }
    return exacts;
}

// The fields of the record for which the others still say what this program would have written.
ChampsSet ChampsTenus(const Exacts& exacts, const Entree& e) {
    ContactAdif attendu;
    const ContactAdif& lu = e.contact;
    const bool jumeaux = !lu[Balise::NAME_INTL].empty() || !lu[Balise::QTH_INTL].empty() ||
                         !lu[Balise::COMMENT_INTL].empty();
    ExporterChamps(exacts.fiche, e.conventions.fuseau, jumeaux ? Jumeaux::Oui : Jumeaux::Non,
                   attendu);
    Entree relu{attendu, e.conventions, true, {}, {}, false, {}, {}};
    LireChamps(relu);
    ChampsSet tenus;
    for (const DescriptionChamp& d : kChamps) {
        bool pareil = true;
        bool present = false;
        for (const DescriptionChamp& autre : kChamps)
            if (Ensemble(d.champ, autre.champ)) {
                pareil = pareil &&
                         OctetsChamp(relu.fiche, autre.champ) == OctetsChamp(e.fiche, autre.champ);
                present = present || exacts.presents[NumeroZone(autre.champ) - 1];
            }
        tenus[NumeroZone(d.champ) - 1] = pareil && present;
    }
    return tenus;
}

void AppliquerExacts(Entree& e, const Exacts& exacts) {
    const ChampsSet tenus = ChampsTenus(exacts, e);
    std::erase_if(e.notes, [&](const Entree::Note& n) { return tenus[NumeroZone(n.champ) - 1]; });
    for (const DescriptionChamp& d : kChamps) {
        const std::size_t i = NumeroZone(d.champ) - 1;
        if (tenus[i])
            e.Mettre(d.champ, OctetsChamp(exacts.fiche, d.champ));
        else if (exacts.presents[i])
            e.notes.push_back({d.champ,
                               {std::string{kPrefixeOrvalis} + std::string{NomChamp(d.champ)},
                                DepuisCp1252(Rogner(OctetsChamp(exacts.fiche, d.champ))),
                                "modifié par un autre programme, dont les champs comptent"}});
    }
    e.refuses &= ~tenus;
    if (tenus[NumeroZone(Champ::MLOC) - 1])
        e.locatorSuppose = false;
}

} // namespace

ContactImporte ImporterContact(const ContactAdif& contact, const Conventions& conventions) {
    Entree e{contact, conventions, false, {}, {}, false, {}, {}};
    LireChamps(e);
    const Exacts exacts = PoserExacts(contact, e);
    if (exacts.presents.any())
        AppliquerExacts(e, exacts);
    ContactImporte resultat;
    resultat.fiche = e.fiche;
    resultat.locatorSuppose = e.locatorSuppose;
    resultat.repris = e.refuses.none() && !EstFinDeLog(e.fiche);
    std::erase_if(e.raisons,
                  [&](const Entree::Note& n) { return !e.refuses[NumeroZone(n.champ) - 1]; });
    if (!e.raisons.empty())
        resultat.raison = e.raisons.front().remarque;
    else if (!resultat.repris) // such a record would end the logbook there
        resultat.raison = {"CALL", "\\", "un indicatif « \\ » finirait le cahier"};
    resultat.remarques = contact.remarques;
    for (Entree::Note& note : e.notes)
        resultat.remarques.push_back(std::move(note.remarque));
    return resultat;
}

ChampsSet RelireChamps(const ContactAdif& contact, const Fuseau& fuseau, QsoRecord& fiche) {
    const Conventions conventions{fuseau, {}, false};
    Entree e{contact, conventions, true, {}, {}, false, {}, {}};
    LireChamps(e);
    fiche = e.fiche;
    // On the way back another locator may stand in for the one that is missing here.
    if (e.locatorSuppose)
        e.refuses.set(NumeroZone(Champ::MLOC) - 1);
    return e.refuses;
}

} // namespace orvalis
