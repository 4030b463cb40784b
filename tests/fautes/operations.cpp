#include "fautes/operations.h"

#include "print/enregistreur.h"
#include "qsl/feuille_qsl.h"
#include "ui/texte_qt.h"

#include <QCheckBox>
#include <QListWidget>

#include <algorithm>

namespace orvalis::essais {
namespace {

const std::string kCahier = "F5ABC.Vek";
const std::string kFeuille = "FeuilleQSL.txt";

std::string Inverser(const std::string& fiches) {
    std::string sortie;
    for (std::size_t i = fiches.size(); i > 0; i -= kTailleFiche)
        sortie += fiches.substr(i - kTailleFiche, kTailleFiche);
    return sortie;
}

/// Other stations than those of Contacts().
std::string AutresContacts(int n) {
    std::string fiches = Contacts(n);
    for (std::size_t i = 0; i < fiches.size(); i += kTailleFiche)
        fiches[i] = 'G';
    return fiches;
}

std::string Marquer(std::string fiches, int nombre) {
    for (std::size_t k = 0; k < static_cast<std::size_t>(nombre); ++k)
        fiches.replace(k * kTailleFiche + 143, 8, "En cours");
    return fiches;
}

/// A sheet whose first `preparees` places hold labels of the first contacts.
std::string Feuille(int preparees) {
    std::string octets;
    for (int k = 1; k <= kNbEtiquettes; ++k) {
        QslSlotRecord etiquette;
        if (k > preparees) {
            MettreChamp(etiquette, ChampEtiquette::Indicatif, kMarqueLibre);
        } else {
            MettreChamp(etiquette, ChampEtiquette::Indicatif, "F" + std::to_string(k) + "QSO");
            MettreChamp(etiquette, ChampEtiquette::Date, "12/05/02");
            MettreChamp(etiquette, ChampEtiquette::Heure, "00:0" + std::to_string(k));
            MettreChamp(etiquette, ChampEtiquette::NumeroFiche, std::to_string(k));
        }
        octets.append(etiquette.octets.begin(), etiquette.octets.end());
    }
    return octets;
}

void TaperContact(Banc& b) {
    b.Cliquer("BtNewQSO");
    b.Taper("f6new\n14.210\nssb\n\n57\njean\nlyon\n69\njn25ab\nrien\n\n\nf5xyz\n");
}

void FichierChoisi(Banc& b, const std::string& nom) {
    b.systeme.fichierChoisi = Q((b.Dossier() / nom).string());
}

// Record 25 lies over the border of two pages of the file: what is done to it, or to the place
// behind 24 contacts, is what a kill can cut.
std::vector<Operation> OperationsDeSaisie() {
    return {
        {"suivant",
         {{kCahier, Contacts(24) + Fin()}},
         TaperContact,
         [](Banc& b) { b.Taper("\n"); }},
        {"terminer",
         {{kCahier, Contacts(24) + Fin() + AutresContacts(3) + Fin()}},
         TaperContact,
         [](Banc& b) { b.Cliquer("BtEnrTerminer"); }},
        {"sans-fin", {{kCahier, Contacts(24)}}, TaperContact, [](Banc& b) { b.Taper("\n"); }},
        {"correction",
         {{kCahier, Contacts(25) + Fin()}},
         [](Banc& b) {
             b.Cliquer("TxtField_12");
             b.Taper("éloïse\n");
         },
         [](Banc& b) { b.Touche(Qt::Key_O, Qt::AltModifier); }},
        {"suppression",
         {{kCahier, Contacts(130) + Fin() + AutresContacts(2)}},
         [](Banc& b) {
             b.Cliquer("CmdSensHaut");
             b.Controle<QListWidget>("ListeLog")->setCurrentRow(1);
             b.Cliquer("BtKillFiche");
         },
         [](Banc& b) { b.Cliquer("FraCmdOui"); }},
        {"suppression-derniere",
         {{kCahier, Contacts(25) + Fin()}},
         [](Banc& b) { b.Cliquer("BtKillFiche"); },
         [](Banc& b) { b.Cliquer("FraCmdOui"); }},
        {"locator",
         {{kCahier, Contacts(2) + Fin()}},
         [](Banc& b) {
             b.Cliquer("BtNewQSO");
             b.Taper("f6abc\n");
             b.Cliquer("TxtField_16");
             b.Taper("jn18du\n");
             b.Controle<QCheckBox>("ChangLocChk")->setChecked(true);
         },
         [](Banc& b) { b.Taper("\n"); }},
    };
}

std::vector<Operation> OperationsDEntretien() {
    return {
        {"tri",
         {{kCahier, Inverser(Contacts(60)) + Fin()}},
         [](Banc&) {},
         [](Banc& b) { b.Menu("MnuClasser"); }},
        {"jumelage",
         {{kCahier, Contacts(24) + Fin()}, {"AUTRE.Vek", AutresContacts(30) + Fin("IN88AA")}},
         [](Banc& b) {
             b.Menu("MnuJumeler");
             FichierChoisi(b, "AUTRE.Vek");
         },
         [](Banc& b) { b.Cliquer("BtPjumeler"); }},
        {"sauvegarde",
         {{kCahier, Contacts(60) + Fin()}},
         [](Banc& b) { FichierChoisi(b, "VekSave/F5ABC.Vek"); },
         [](Banc& b) { b.Menu("MnuSauver"); }},
    };
}

std::vector<Operation> OperationsDEtiquettes() {
    return {
        {"etiquette-placee",
         {{kCahier, Contacts(25) + Fin()}, {kFeuille, Feuille(0)}},
         [](Banc& b) {
             b.Cliquer("TxtField_14");
             b.Taper("F5ABC\n");
             b.Touche(Qt::Key_B, Qt::AltModifier);
         },
         [](Banc& b) { b.Touche(Qt::Key_V, Qt::AltModifier); }},
        {"etiquette-supprimee",
         {{kCahier, Marquer(Contacts(25), 1) + Fin()}, {kFeuille, Feuille(1)}},
         [](Banc& b) {
             b.Menu("MnuGestionFeuilleQSL");
             b.Cliquer("BtChoix_1");
         },
         [](Banc& b) { b.Cliquer("BtDelQSL"); }},
        {"etiquettes-imprimees",
         {{kCahier, Marquer(Contacts(25), 3) + Fin()}, {kFeuille, Feuille(3)}},
         [](Banc& b) {
             b.systeme.imprimante = [] { return std::make_unique<Enregistreur>("Sans"); };
             b.Menu("MnuGestionFeuilleQSL");
             b.Cliquer("BtPrintQSL");
         },
         [](Banc& b) { b.Cliquer("BtCtrl_Parfait"); }},
        {"demarrage",
         {{kCahier, Contacts(2) + Fin()}},
         [](Banc&) {},
         [](Banc& b) { b.Ouvrir(); },
         false},
    };
}

} // namespace

std::vector<Operation> Operations() {
    std::vector<Operation> toutes = OperationsDeSaisie();
    for (auto&& groupe : {OperationsDEntretien(), OperationsDEtiquettes()})
        toutes.insert(toutes.end(), groupe.begin(), groupe.end());
    return toutes;
}

} // namespace orvalis::essais
