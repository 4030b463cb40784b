// What the QSL sheet, box 14 of the card and the print check report.
#include "ui/flux_qsl.h"
#include "ui/orvalis.h"
#include "ui/panneau_ctrl_impression.h"
#include "ui/panneau_feuille_qsl.h"
#include "ui/panneau_fiche.h"
#include "ui/texte_qt.h"

namespace orvalis {

void Orvalis::BrancherQsl() {
    PictFeuilleQSL* panneau = &p_.feuilleQSL;
    Brancher(&p_.fiche.Boite(NumeroZone(Champ::MQSL)), &ZoneSaisie::cliquee,
             [this] { CliquerMaQsl(p_); });
    Brancher(panneau, &PictFeuilleQSL::choix, [this](int k) { SurChoix(p_, k); });
    Brancher(panneau, &PictFeuilleQSL::tag, [this](int k) { SurTag(p_, k); });
    Brancher(panneau, &PictFeuilleQSL::boiteSaisie,
             [this](std::size_t boite, const QString& texte) {
                 SurSaisieEtiquette(p_, boite, S(texte));
             });
    Brancher(panneau, &PictFeuilleQSL::boiteEntree,
             [this](std::size_t boite) { SurEntreeEtiquette(p_, boite); });
    Brancher(panneau, &PictFeuilleQSL::voieChoisie, [this](VoieQSL voie) { SurVoie(p_, voie); });
    Brancher(panneau, &PictFeuilleQSL::valider, [this] { ValiderEtiquette(p_); });
    Brancher(panneau, &PictFeuilleQSL::supprimer, [this] { SupprimerEtiquette(p_); });
    Brancher(panneau, &PictFeuilleQSL::laisser, [this] { LaisserEtiquette(p_); });
    Brancher(panneau, &PictFeuilleQSL::quitter, [this] { QuitterFeuille(p_); });
    Brancher(panneau, &PictFeuilleQSL::restaurer, [this] { RestaurerFeuille(p_); });
}

void Orvalis::BrancherImpression() {
    Brancher(&p_.feuilleQSL, &PictFeuilleQSL::imprimer, [this] { ImprimerFeuille(p_); });
    Brancher(&p_.ctrlImpression, &PictCtrlImpression::parfait, [this] { ConfirmerImpression(p_); });
    Brancher(&p_.ctrlImpression, &PictCtrlImpression::revoir, [this] { RevoirImpression(p_); });
}

} // namespace orvalis
