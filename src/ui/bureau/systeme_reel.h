// The world outside as it is: the desktop's clock, dialogs, printer and programs.
#pragma once

#include "ui/bureau/systeme.h"

#include <memory>

class QPrinter;

namespace orvalis {

class SystemeReel : public Systeme {
  public:
    SystemeReel();
    ~SystemeReel() override;
    [[nodiscard]] std::filesystem::path Lecteur() const override;
    [[nodiscard]] Instant Maintenant() const override;
    void Pause(int secondes) override;
    void Informer(QWidget* parent, const QString& titre, const QString& texte) override;
    void Avertir(QWidget* parent, const QString& texte) override;
    [[nodiscard]] QString ChoisirFichier(QWidget* parent, const DemandeFichier& demande) override;
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* parent) override;
    void ConfigurerImprimante(QWidget* parent) override;
    [[nodiscard]] std::filesystem::path DossierInstalle() const override;
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin) override;
    void Quitter(int code) override;

  private:
    QPrinter& Sortie();
    /// Shows the printer dialog; false when it was cancelled.
    bool DemanderSortie(QWidget* parent, const QString& titre);

    bool arret_ = false;
    std::unique_ptr<QPrinter> sortie_;
    bool pdfEcrit_ = false; ///< the PDF file chosen has been written since
};

} // namespace orvalis
