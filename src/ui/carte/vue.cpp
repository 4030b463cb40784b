#include "ui/carte/vue.h"

#include "ui/carte/conditions.h"
#include "ui/carte/foyer.h"

#include <algorithm>

namespace orvalis {
namespace {

VueCarte VoirCarte(const Session& session, const Ecran& ecran) {
    const Carte& carte = session.carte;
    return {.boites = carte.boites,
            .zones = carte.zones,
            .enErreur = BoiteDuFoyer(ecran.enErreur.value_or(Foyer{})),
            .numero = carte.numero,
            .distance = carte.distance,
            .azimut = carte.azimut,
            .cap = CapMontre(carte),
            .azimutTrompeur = AzimutTrompeur(carte),
            .departement = carte.departement,
            .activeRech = ecran.activeRech,
            .bandeau = Bandeau(session, ecran),
            .infoJointe = ChercherInfoJointe(carte),
            .active = !ecran.classer.montre,
            .prendDuTexte = carte.PrendDuTexte()};
}

VueBoutons VoirBoutons(const Session& session, const Ecran& ecran, unsigned conditions) {
    const EtatSaisie& saisie = session.carte.saisie;
    // Behind the buttons of entry the idle ones wait as they will be when it ends.
    const unsigned remplies = conditions | kHorsSaisie;
    VueBoutons vue;
    vue.saisie = saisie.EnSaisie;
    vue.menuActif = ecran.menuActif;
    const bool libres = !ecran.contacts.boutonsGrises && !ecran.classer.montre;
    vue.nouveau = libres && Permis(kPourNouveau, remplies);
    vue.supprimer = !ecran.contacts.supprimerGrise && !ecran.classer.montre &&
                    (ecran.temoinDemarrage != 0 || Permis(kPourSupprimer, remplies));
    vue.fermer = !ecran.contacts.boutonsGrises;
    vue.suivantArme = ecran.suivantArme;
    vue.annuler = ecran.annulerActif;
    vue.tempsReel = saisie.tempsReel;
    if (saisie.EnSaisie)
        vue.bulleTerminer = "Terminer " + DireTerminer(session, ecran).texte;
    return vue;
}

// What stands on an empty sheet; nothing once a contact is under entry.
std::string Inviter(const Session& session, unsigned conditions) {
    if (!Permis(kCahierOuvert | kPret | kHorsSaisie, conditions) || session.cahier.nbFiches > 0)
        return {};
    if (session.cahier.lectureSeule)
        return "Ce cahier est vide.";
    return "Le cahier est vide.\n\n"
           "Alt+N (Nouveau QSO) : entrer le premier contact\n"
           "Fichier > Jumeler deux Fichiers.Vek : reprendre les contacts d'un autre cahier\n"
           "F1 : ouvrir le guide";
}

// Where the operator goes on when a wish cannot be granted, first what covers the rest.
constexpr std::array<Foyer, 9> kReplis = {{
    {Cible::Revoir},
    {Cible::ChoixEtiquette, 1},
    {Cible::Non},
    {Cible::TexteLocator},
    {Cible::Sauvegarder},
    {Cible::Jumeler},
    {Cible::Liste},
    {Cible::Contacts},
    {Cible::Nouveau},
}};

} // namespace

VueFenetre VoirFenetre(const Session& session, const Ecran& ecran, const EtatFeuille& feuille) {
    VueFenetre vue;
    vue.conditions = ConditionsRemplies(session, ecran, feuille);
    vue.carte = VoirCarte(session, ecran);
    vue.boutons = VoirBoutons(session, ecran, vue.conditions);
    vue.liste = ecran.liste;
    vue.pagination = ecran.liste.nbFiches > kFichesParPage;
    vue.recherche = ecran.recherche;
    vue.contacts = ecran.contacts;
    vue.question = ecran.question;
    vue.locator = ecran.locator;
    vue.classer = ecran.classer;
    vue.jumelage = ecran.jumelage;
    if (feuille.vue.panneau)
        vue.feuille = feuille;
    if (feuille.vue.panneau && !feuille.vue.controle)
        vue.apercu = VoirApercu(feuille, session.station.indicatif);
    vue.locatorEnErreur = ecran.enErreur == Foyer{Cible::TexteLocator};
    vue.heure = ecran.heure;
    vue.invitation = Inviter(session, vue.conditions);
    vue.titre = ecran.titre;
    vue.adieu = ecran.adieu;
    vue.annonce = ecran.annonce.rang;
    vue.conseil = Conseiller(session, ecran, feuille);
    return vue;
}

bool OublierAnnonce(Ecran& ecran, const VueFenetre& avant, const VueFenetre& apres) {
    const auto sansBulle = [](VueBoutons boutons) { // which tells of the box in hand
        boutons.bulleTerminer.clear();
        return boutons;
    };
    const VueCarte &a = avant.carte, &b = apres.carte;
    const bool meme = a.zones == b.zones && a.numero == b.numero &&
                      sansBulle(avant.boutons) == sansBulle(apres.boutons) &&
                      avant.liste == apres.liste && avant.recherche == apres.recherche &&
                      avant.contacts == apres.contacts && avant.question == apres.question &&
                      avant.locator == apres.locator && avant.jumelage == apres.jumelage &&
                      avant.feuille == apres.feuille;
    const bool oublie = !meme && avant.annonce == apres.annonce && !ecran.annonce.texte.empty();
    if (oublie)
        ecran.annonce.texte.clear();
    return oublie;
}

bool Joignable(const VueFenetre& vue, const Carte& carte, const Ecran& ecran, const Foyer& foyer) {
    const VueFeuille& feuille = vue.feuille.vue;
    const bool editeur = feuille.panneau && !feuille.controle;
    switch (foyer.cible) {
    case Cible::BoiteEtiquette:
    case Cible::VoieBureau:
    case Cible::VoieDirecte:
    case Cible::ChoixEtiquette:
        return editeur;
    case Cible::ValiderEtiquette:
        return editeur && feuille.valider;
    case Cible::LaisserEtiquette:
        return editeur && feuille.laisser;
    case Cible::Revoir:
        return feuille.controle;
    case Cible::Nouveau:
        return !feuille.panneau && Joignable(carte, ecran, foyer) && vue.boutons.nouveau;
    case Cible::Aucune:
    case Cible::Autre:
    case Cible::Liste:
        return Joignable(carte, ecran, foyer);
    default: // in the column that the sheet covers
        return !feuille.panneau && Joignable(carte, ecran, foyer);
    }
}

bool AccorderFoyer(Carte& carte, Ecran& ecran, const Station& station, const VueFenetre& vue,
                   bool perdu) {
    const auto joignable = [&](const Foyer& foyer) { return Joignable(vue, carte, ecran, foyer); };
    if (!perdu && joignable(ecran.foyer.voeu.value_or(ecran.foyer.ici)))
        return false;
    const auto repli = std::find_if(kReplis.begin(), kReplis.end(), joignable);
    if (repli == kReplis.end())
        LacherFoyer(carte, ecran);
    else
        DeplacerFoyer(carte, ecran, station, *repli);
    return true;
}

} // namespace orvalis
