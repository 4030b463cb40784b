// What is seen of the window: every control by its name, with what it shows, and the files of the
// drive. Two trees may keep the class of the sheet in different places.
#pragma once

#include "monde.h"
#include "trace.h"

// The sheet's class; a tree that has it elsewhere may say so when it builds this.
#ifdef JUMEAUX_FEUILLE
#include JUMEAUX_FEUILLE
#elif __has_include("ui/widgets/vue_page.h")
#include "ui/widgets/vue_page.h"
#elif __has_include("ui/feuille_log.h")
#include "ui/feuille_log.h"
#elif __has_include("ui/fenetre/feuille_log.h")
#include "ui/fenetre/feuille_log.h"
#elif __has_include("ui/liste/feuille_log.h")
#include "ui/liste/feuille_log.h"
#endif

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#ifndef JUMEAUX_CLASSE
#if __has_include("ui/widgets/vue_page.h")
#define JUMEAUX_CLASSE VuePage
#else
#define JUMEAUX_CLASSE FeuilleLog
#endif
#endif

namespace orvalis {
class JUMEAUX_CLASSE; // a tree without it has the sheet's text in its accessible description
}

namespace jumeaux {

namespace fs = std::filesystem;
using Feuille = orvalis::JUMEAUX_CLASSE;

constexpr int kRangees = 20; // of a page

template<typename F> std::string TexteDeFeuille(const QWidget& controle) {
    if constexpr (requires(const F& f) { f.toPlainText(); })
        if (const auto* feuille = qobject_cast<const F*>(&controle))
            return feuille->toPlainText().toStdString();
    return controle.accessibleDescription().toStdString();
}

template<typename F> QPoint PointDeRangee(QAbstractScrollArea& controle, int rangee) {
    if constexpr (requires(const F& f) { f.RectDeRangee(0); })
        if (const auto* feuille = qobject_cast<const F*>(&controle))
            return feuille->RectDeRangee(rangee).center();
    const QSize place = controle.viewport()->size();
    return {place.width() / 2, (rangee + 2) * place.height() / (kRangees + 3)};
}

class Regard {
  public:
    explicit Regard(std::string racine) : racine_(std::move(racine)) {}

    [[nodiscard]] Etat Voir(const QMainWindow& fenetre, const SystemeJumeau& systeme) {
        etat_.clear();
        etat_.reserve(kAttendues);
        VoirFenetre(fenetre);
        for (const QWidget* w : fenetre.findChildren<QWidget*>())
            if (ANom(*w))
                VoirControle(*w);
        for (const QAction* a : fenetre.findChildren<QAction*>())
            if (ANom(*a))
                VoirCommande(*a);
        std::string appels;
        for (const std::string& appel : systeme.appels)
            appels += appel + '\n';
        Mettre("(systeme)", "appels", appels);
        VoirFichiers(systeme.Dossier());
        Ordonner(etat_);
        return std::move(etat_);
    }
    [[nodiscard]] int Etiquettes() const { return etiquettes_; }

  private:
    static constexpr std::size_t kAttendues = 3000;

    [[nodiscard]] static bool ANom(const QObject& objet) {
        const QString nom = objet.objectName();
        return !nom.isEmpty() && !nom.startsWith(QLatin1String("qt_"));
    }
    void Mettre(const std::string& controle, const char* propriete, std::string texte) {
        Remplacer(texte, racine_, "~");
#ifdef ORVALIS_VERSION
        Remplacer(texte, "ersion " ORVALIS_VERSION, "ersion");
#endif
        etat_.push_back({controle, propriete, std::move(texte)});
    }
    void Mettre(const std::string& controle, const char* propriete, const QString& texte) {
        Mettre(controle, propriete, texte.toStdString());
    }
    void Mettre(const std::string& controle, const char* propriete, bool vrai) {
        etat_.push_back({controle, propriete, vrai ? "1" : "0"});
    }
    static void Remplacer(std::string& texte, const std::string& cherche, const char* par) {
        for (auto p = texte.find(cherche); p != std::string::npos; p = texte.find(cherche, p + 1))
            texte.replace(p, cherche.size(), par);
    }
    void VoirFenetre(const QMainWindow& fenetre) {
        std::string foyer = "(aucun)";
        for (const QWidget* w = QApplication::focusWidget(); w != nullptr; w = w->parentWidget())
            if (ANom(*w)) {
                foyer = w->objectName().toStdString();
                break;
            }
        const std::string nom = "(fenetre)";
        Mettre(nom, "foyer", foyer);
        Mettre(nom, "titre", fenetre.windowTitle());
        Mettre(nom, "visible", fenetre.isVisible());
        Mettre(nom, "sablier", QGuiApplication::overrideCursor() != nullptr);
        Mettre(nom, "surgie", QApplication::activePopupWidget() != nullptr);
        // The captions have no names; together they tell when one of them changes.
        std::vector<std::string> legendes;
        for (const QLabel* label : fenetre.findChildren<QLabel*>())
            if (!ANom(*label) && label->isVisible())
                legendes.push_back(label->text().toStdString());
        std::sort(legendes.begin(), legendes.end());
        std::string ensemble;
        for (const std::string& legende : legendes)
            ensemble += legende + '\n';
        Mettre(nom, "legendes", ensemble);
    }
    void VoirControle(const QWidget& w) {
        const std::string nom = w.objectName().toStdString();
        Mettre(nom, "visible", w.isVisible());
        Mettre(nom, "actif", w.isEnabled());
        if (!w.toolTip().isEmpty())
            Mettre(nom, "bulle", w.toolTip());
        if (!w.accessibleName().isEmpty())
            Mettre(nom, "accessible", w.accessibleName());
        if (w.font().bold())
            Mettre(nom, "gras", true);
        if (const auto* boite = qobject_cast<const QLineEdit*>(&w))
            VoirBoite(nom, *boite);
        else if (const auto* label = qobject_cast<const QLabel*>(&w))
            Mettre(nom, "texte", label->text());
        else if (const auto* bouton = qobject_cast<const QAbstractButton*>(&w))
            VoirBouton(nom, *bouton);
        else if (const auto* groupe = qobject_cast<const QGroupBox*>(&w))
            Mettre(nom, "titre", groupe->title());
        else if (const auto* liste = qobject_cast<const QListWidget*>(&w))
            VoirListe(nom, *liste);
        else if (const auto* barre = qobject_cast<const QAbstractSlider*>(&w))
            Mettre(nom, "valeur",
                   QStringLiteral("%1 %2 %3")
                       .arg(barre->minimum())
                       .arg(barre->maximum())
                       .arg(barre->value()));
        else if (qobject_cast<const QAbstractScrollArea*>(&w) != nullptr)
            Mettre(nom, "texte", TexteDeFeuille<Feuille>(w));
        else if (const auto* menu = qobject_cast<const QMenu*>(&w))
            Mettre(nom, "titre", menu->title());
        else if (const auto* cadre = qobject_cast<const QFrame*>(&w))
            Mettre(nom, "trait", std::to_string(cadre->lineWidth()));
    }
    void VoirBoite(const std::string& nom, const QLineEdit& boite) {
        Mettre(nom, "texte", boite.text());
        Mettre(nom, "choisi", boite.selectedText());
        Mettre(nom, "curseur", std::to_string(boite.cursorPosition()));
        Mettre(nom, "lecture", boite.isReadOnly());
        Mettre(nom, "fond", boite.palette().color(QPalette::Base).name());
        Mettre(nom, "encre", boite.palette().color(QPalette::Text).name());
    }
    void VoirBouton(const std::string& nom, const QAbstractButton& bouton) {
        Mettre(nom, "texte", bouton.text());
        if (bouton.isCheckable())
            Mettre(nom, "coche", bouton.isChecked());
        Mettre(nom, "raccourci", bouton.shortcut().toString());
        Mettre(nom, "fond", bouton.palette().color(QPalette::Button).name());
        Mettre(nom, "encre", bouton.palette().color(QPalette::ButtonText).name());
    }
    void VoirListe(const std::string& nom, const QListWidget& liste) {
        std::string lignes;
        for (int i = 0; i < liste.count(); ++i)
            lignes += liste.item(i)->text().toStdString() + '\n';
        Mettre(nom, "lignes", lignes);
        Mettre(nom, "courante", std::to_string(liste.currentRow()));
        Mettre(nom, "choisies", std::to_string(liste.selectedItems().size()));
    }
    void VoirCommande(const QAction& a) {
        const std::string nom = a.objectName().toStdString();
        Mettre(nom, "texte", a.text());
        Mettre(nom, "visible", a.isVisible());
        Mettre(nom, "actif", a.isEnabled());
        Mettre(nom, "coche", a.isChecked());
    }
    void VoirFichiers(const fs::path& dossier) {
        etiquettes_ = 0;
        std::error_code erreur;
        for (const auto& element : fs::recursive_directory_iterator(dossier, erreur)) {
            const std::string nom = fs::relative(element.path(), dossier).string();
            if (!element.is_regular_file()) {
                Mettre("(fichier " + nom + ")", "octets", std::string{"dossier"});
                continue;
            }
            std::ifstream flux(element.path(), std::ios::binary);
            const std::string octets{std::istreambuf_iterator<char>(flux), {}};
            Mettre("(fichier " + nom + ")", "octets",
                   std::to_string(octets.size()) + " " + std::to_string(Empreinte(octets)));
            constexpr std::size_t kTailleEtiquette = 106;
            if (nom == "FeuilleQSL.txt")
                for (std::size_t i = 0; i < octets.size(); i += kTailleEtiquette)
                    etiquettes_ += octets.compare(i, 4, "*** ") == 0 ? 0 : 1;
        }
    }

    std::string racine_;
    Etat etat_;
    int etiquettes_ = 0; // labels on the sheet
};

} // namespace jumeaux
