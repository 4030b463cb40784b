#include "ui/confronter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QRegularExpression>

namespace orvalis::operateur::conseil {

std::string Entree(const Banc& banc) {
    QString texte = Q(banc.Texte("LabConseil")).section(QStringLiteral(" | "), 0, 0);
    texte.replace(QChar::Nbsp, u' ');
    const QString debut = QStringLiteral("Entrée : ");
    return texte.startsWith(debut) ? S(texte.mid(debut.size())) : "";
}

// What the control that has the focus is called in a sentence.
std::string NomDuFoyer() {
    const QWidget* foyer = QApplication::focusWidget();
    if (foyer == nullptr)
        return "";
    if (foyer->objectName() == QStringLiteral("ListeLog"))
        return "la liste";
    const auto* bouton = qobject_cast<const QAbstractButton*>(foyer);
    return bouton == nullptr ? S(foyer->accessibleName()) : S(bouton->text().remove(u'&'));
}

// Whether the sentence says so; what the groups of the pattern found goes to `trouve`, after the
// whole.
bool Dit(const std::string& phrase, const char* modele, std::vector<std::string>& trouve) {
    const QRegularExpression regle(Q(modele));
    const QRegularExpressionMatch ici = regle.match(Q(phrase));
    trouve.clear();
    for (int i = 0; i <= regle.captureCount(); ++i)
        trouve.push_back(S(ici.captured(i)));
    return ici.hasMatch();
}

std::string Confronter(Banc& banc) {
    const std::string phrase = Entree(banc), avant = banc.Texte("foyer"),
                      fichier = banc.OctetsCahier();
    const bool boite = avant.starts_with("TxtField_");
    const bool saisie = banc.Etat("PictEnrs") != "caché";
    const std::string montre = boite ? banc.Texte(avant) : "";
    const bool question = banc.Etat("FraMsgFiche") != "caché";
    const std::string numero = banc.Texte("NoFicheLab");
    SCOPED_TRACE(avant + " (" + montre + ") : " + phrase);
    std::vector<std::string> remplies; // what the operator gave, not the clock nor the station
    for (int k = 1; k <= 17 && saisie; ++k) {
        const bool donnee = k == 16 || ((k == 2 || k == 3) && banc.Etat("OptionEnr1") == "coché");
        if (std::string texte = banc.Texte("TxtField_" + std::to_string(k));
            !donnee && !texte.empty())
            remplies.push_back(std::move(texte));
    }
    std::string pendant; // the second of ERREUR
    banc.systeme.pendantPause = [&] { pendant = banc.Texte(avant); };
    banc.Touche(Qt::Key_Return);
    const bool erreur = !banc.systeme.pendantPause;
    banc.systeme.pendantPause = nullptr;

    std::vector<std::string> t;
    EXPECT_EQ(erreur, Dit(phrase, "^affiche ERREUR", t));
    EXPECT_TRUE(!erreur || pendant == "ERREUR") << pendant;
    // Where it goes on.
    const bool fin =
        Dit(phrase, "^(enregistre|abandonne|n'enregistre|supprime|rend|garde la|place)", t);
    if (Dit(phrase, ", puis ([^(]*[^( ])( \\(|$)", t)) {
        EXPECT_EQ(NomDuFoyer(), t[1]);
    } else if (!fin) {
        EXPECT_EQ(banc.Texte("foyer"), avant);
    }
    // What is asked, and what is in the file.
    const bool repond = avant.starts_with("FraCmd");
    EXPECT_EQ(banc.Etat("FraMsgFiche") != "caché",
              Dit(phrase, "^demande s'il faut", t) || (question && !repond));
    const bool ecrit = Dit(phrase, "^(enregistre(?! la fiche, inch)|supprime)", t);
    EXPECT_EQ(banc.OctetsCahier() != fichier, ecrit);
    if (Dit(phrase, "^enregistre le contact ([0-9]+)", t)) {
        const auto n = static_cast<std::size_t>(std::stoi(t[1]));
        const std::string apres = banc.OctetsCahier();
        EXPECT_EQ(numero, " Charger fiche N° " + t[1]);
        EXPECT_EQ(apres.size(), (n + 1) * kTailleFiche);
        EXPECT_EQ(apres.substr(n * kTailleFiche, 1), "\\");
        std::vector<std::string> joint;
        const bool jointe = Dit(phrase, "avec (le manager|la remarque) « (.*) » d'un", joint);
        if (jointe) {
            EXPECT_EQ(apres.substr((n - 1) * kTailleFiche + (joint[1] == "le manager" ? 128 : 113),
                                   joint[2].size()),
                      joint[2]);
        }
    }
    if (Dit(phrase, "^(?:oublie (.*?) ; )?recommence la fiche ([0-9]+),", t)) {
        std::string dites;
        const std::size_t cites = remplies.size() > 4 ? 3 : remplies.size();
        for (std::size_t i = 0; i < cites; ++i)
            dites += (i == 0 ? "« " : ", « ") + remplies[i] + " »";
        if (remplies.size() > cites)
            dites += " et " + std::to_string(remplies.size() - cites) + " autres cases";
        EXPECT_EQ(t[1], dites);
        EXPECT_EQ(banc.Texte("NoFicheLab"), " Charger fiche N° " + t[2]);
        for (int k = 1; k <= 17; ++k)
            EXPECT_TRUE(k == 16 || banc.Texte("TxtField_" + std::to_string(k)).empty()) << k;
    } else if (Dit(phrase, "^(?:passe|reste) en (Réel|Différé)", t)) {
        EXPECT_EQ(banc.Etat(t[1] == "Réel" ? "OptionEnr1" : "OptionEnr2"), "coché");
    } else if (Dit(phrase, "^(dé)?coche", t)) {
        EXPECT_EQ(banc.Etat(avant) == "coché", t[1].empty());
    }
    if (!boite)
        return phrase.substr(0, phrase.find(' '));
    // The slot, which a box shows once it is left.
    const std::string ici = banc.Texte("foyer");
    const std::string apres = banc.Texte(avant);
    if (ici == avant)
        banc.Controle<QWidget>(saisie ? "BtEnrTerminer" : "ListeLog")->setFocus();
    const std::string zone = banc.Texte(avant);
    if (Dit(phrase, "^(garde|prend) « (.*?) »", t)) {
        EXPECT_EQ(zone, t[2]);
        EXPECT_EQ(S(Q(montre).trimmed()) == zone, t[1] == "garde");
    } else if (Dit(phrase, "^(laisse|vide) |ERREUR et vide", t)) {
        EXPECT_EQ(erreur && !saisie ? apres : zone, "");
        EXPECT_TRUE(t[1] != "laisse" || Q(montre).trimmed().isEmpty());
    } else if (Dit(phrase, "^remet « (.*?) »", t)) {
        EXPECT_EQ(apres, t[1]);
        EXPECT_NE(montre, apres);
    } else if (Dit(phrase, "^efface « (.*?) »", t)) {
        EXPECT_EQ(montre, t[1]);
        EXPECT_EQ(apres, "");
    } else if (phrase.starts_with("reste ici") || phrase.starts_with("ne change")) {
        EXPECT_EQ(apres, montre);
    }
    if (ici == avant)
        banc.Controle<QWidget>(avant)->setFocus();
    return phrase.substr(0, phrase.find(' '));
}

} // namespace orvalis::operateur::conseil
