#include "fautes/fautes.h"
#include "print/enregistreur.h"
#include "qsl/feuille_qsl.h"
#include "ui/texte_qt.h"

namespace orvalis::operateur {
namespace {

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
        const std::string n = std::to_string(k);
        const std::string heure = "12/05/0200:0" + n;
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
    const std::string fin = Fin();
    const char* tape =
        "BtNewQSO =f6new =14.210 =ssb = =57 =jean =lyon =69 =jn25ab =rien = = =f5xyz";
    const char* locator = "BtNewQSO =f6abc TxtField_16 =jn18du ChangLocChk";
    return {
        {"suivant", Contacts(24) + fin, tape, "="},
        {"terminer", Contacts(24) + fin + Autres(3) + fin, tape, "BtEnrTerminer"},
        {"sans-fin", Contacts(24), tape, "="},
        {"correction", Contacts(25) + fin, "TxtField_12 =éloïse", "^O"},
        {"suppression", Contacts(130) + fin + Autres(2), "CmdSensHaut #1 BtKillFiche", "FraCmdOui"},
        {"suppression-derniere", Contacts(25) + fin, "BtKillFiche", "FraCmdOui"},
        {"locator", Contacts(2) + fin, locator, "BtChangValid"},
        {"tri", Contacts(60).substr(30 * kTailleFiche) + Contacts(30) + fin, "", "MnuClasser"},
        {"jumelage", Contacts(24) + fin, "<AUTRE.Vek MnuJumeler", "BtPjumeler"},
        {"sauvegarde", Contacts(60) + fin, "<VekSave/F5ABC.Vek", "MnuSauver"},
        {"etiquette-placee", Contacts(25) + fin, "TxtField_14 =F5ABC ^B", "^V", 0},
        {"etiquette-supprimee", Contacts(25) + fin, "MnuGestionFeuilleQSL BtChoix_1", "BtDelQSL",
         1},
        {"etiquettes-imprimees", Contacts(25) + fin, "MnuGestionFeuilleQSL BtPrintQSL",
         "BtCtrl_Parfait", 3},
        {"demarrage", Contacts(2) + fin, "", ""},
    };
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
    if (*operation.dernier != '\0')
        banc.Ouvrir();
    banc.Faire(operation.gestes);
}

std::string Agir(const Operation& operation, Banc& banc) {
    if (*operation.dernier == '\0')
        banc.Ouvrir();
    banc.Faire(operation.dernier);
    std::string texte;
    for (const QString& message : banc.systeme.avertissements)
        texte += S(message);
    if (banc.systeme.codeDeFin && (texte.empty() || *banc.systeme.codeDeFin == 0))
        texte = "ended without a word";
    return texte;
}

} // namespace orvalis::operateur
