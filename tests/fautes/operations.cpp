#include "core/creation.h"
#include "fautes/fautes.h"
#include "print/enregistreur.h"
#include "qsl/feuille_qsl.h"
#include "ui/bureau/texte_qt.h"

namespace orvalis::operateur {
namespace {

// The first run, without its dialog.
constexpr const char* kCreer = "créer";

// Other stations than those of Contacts().
std::string Autres(int n) {
    std::string fiches = Contacts(n);
    for (std::size_t i = 0; i < fiches.size(); i += kTailleFiche)
        fiches[i] = 'G';
    return fiches;
}

// A sheet with labels of the first contacts.
std::string Feuille(int etiquettes) {
    std::string feuille;
    for (int k = 1; k <= kNbEtiquettes; ++k) {
        const std::string n = std::to_string(k), heure = "12/05/0200:0" + n;
        feuille += k > etiquettes ? aides::Brute({{0, kMarqueLibre}}, kTailleEtiquette)
                                  : aides::Brute({{0, "F" + n + "QSO"}, {60, heure}, {96, n}},
                                                 kTailleEtiquette);
    }
    return feuille;
}

} // namespace

// Record 25 lies over the border of two pages of the file: what is done to it, or to the place
// behind 24 contacts, is what a kill can cut.
std::vector<Operation> Operations() {
    const std::string fin = Fin(), c24 = Contacts(24), c25 = Contacts(25) + fin,
                      saisie = "clic BtNewQSO; valide f6new, 14.210, ssb, , 57, jean, lyon, 69, "
                               "jn25ab, rien, , , f5xyz",
                      vek = "Orvalis/F5ABC.Vek Orvalis/F5ABC.Vek!",
                      parametres = "Orvalis/Parvel.cfg.tmp Orvalis/Parvel.cfg.tmp! "
                                   "Orvalis/Parvel.cfg> Orvalis!",
                      feuille = "Orvalis/FeuilleQSL.txt Orvalis/FeuilleQSL.txt!",
                      etiquettes = "menu MnuGestionFeuilleQSL; clic ";
    return {
        // name, logbook, gestures, the last one, what is written and flushed, labels
        {"suivant", c24 + fin, saisie, "entree 1", vek},
        {"terminer", c24 + fin + Autres(3) + fin, saisie, "clic BtEnrTerminer", vek},
        {"sans-fin", c24, saisie, "entree 1", vek},
        {"correction", c25, "clic TxtField_12; valide éloïse", "touche Alt+O", vek},
        {"suppression", Contacts(130) + fin + Autres(2),
         "clic CmdSensHaut; ligne 2; clic BtKillFiche", "clic FraCmdOui", vek},
        {"suppression-derniere", c25, "clic BtKillFiche", "clic FraCmdOui", vek},
        {"locator", Contacts(2) + fin,
         "clic BtNewQSO; valide f6abc; clic TxtField_16; valide jn18du; clic ChangLocChk",
         "clic BtChangValid", parametres},
        {"tri", Contacts(60).substr(30 * kTailleFiche) + Contacts(30) + fin, "", "menu MnuClasser",
         vek},
        {"jumelage", c24 + fin, "fichier AUTRE.Vek; menu MnuJumeler", "clic BtPjumeler",
         vek + " " + vek},
        {"jumelage-sans-fin", c24, "fichier AUTRE.Vek; menu MnuJumeler", "clic BtPjumeler",
         vek + " " + vek},
        {"copie", Contacts(60) + fin, "fichier Copie.Vek", "menu MnuCopieSurDisque",
         "Orvalis/Copie.Vek Orvalis/Copie.Vek! Orvalis!"},
        {"sauvegarde", Contacts(60) + fin, "fichier VekSave/F5ABC.Vek", "menu MnuSauver",
         "Orvalis! Orvalis/VekSave/F5ABC.Vek Orvalis/VekSave/F5ABC.Vek! Orvalis/VekSave!"},
        {"etiquette-placee", c25, "clic TxtField_14; valide F5ABC; touche Alt+B", "touche Alt+V",
         feuille + " " + vek, 0},
        {"etiquette-supprimee", c25, etiquettes + "BtChoix_1", "clic BtDelQSL", vek + " " + feuille,
         1},
        {"etiquettes-imprimees", c25, etiquettes + "BtPrintQSL", "clic BtCtrl_Parfait",
         vek + " " + feuille, 3},
        {"etiquette-retablie", c25, "ligne 1; clic TxtField_14; touche Delete, Return, Alt+O",
         "clic TxtField_14", vek, 1},
        {"demarrage", Contacts(2) + fin, "", "",
         "Orvalis/FeuilleQSL.txt.tmp Orvalis/FeuilleQSL.txt.tmp! Orvalis/FeuilleQSL.txt> Orvalis!"},
        {"creation", "", "", kCreer, parametres + " " + vek + " Orvalis! .!"}};
}

void Preparer(const Operation& operation, Banc& banc) {
    std::string cahier = operation.cahier;
    for (int k = 0; k < operation.etiquettes; ++k)
        cahier.replace(static_cast<std::size_t>(k) * kTailleFiche + 143, 8, "En cours");
    banc.Installer(cahier);
    banc.Ecrire("AUTRE.Vek", Autres(30) + Fin("IN88AA"));
    if (operation.etiquettes >= 0)
        banc.Ecrire("FeuilleQSL.txt", Feuille(operation.etiquettes));
    banc.systeme.imprimante = [] { return std::make_unique<Enregistreur>("Sans"); };
    if (!operation.dernier.empty() && operation.dernier != kCreer)
        banc.Ouvrir();
    const bool fini = cahier.find('\\') != std::string::npos;
    if (!operation.gestes.empty())
        banc.Suivre(operation.nom + " : " + operation.gestes + " ->" +
                    (fini ? "" : " averti contient peut-être abîmé"));
}

std::string Agir(const Operation& operation, Banc& banc) {
    if (operation.dernier.empty())
        banc.Ouvrir();
    std::string texte;
    try {
        if (operation.dernier != kCreer)
            banc.Faire(operation.dernier);
        else if (!CreerCahier(banc.systeme.lecteur, {"F6NEW", "F5ABC.Vek", "JN18AA"}))
            texte = "Impossible";
    } catch (const std::exception& erreur) {
        texte = erreur.what();
    }
    for (const QString& message : banc.systeme.avertissements)
        texte += S(message);
    if (banc.systeme.codeDeFin)
        texte =
            texte.empty() || *banc.systeme.codeDeFin == 0 ? "ended without a word" : texte + kFini;
    return texte;
}

} // namespace orvalis::operateur
