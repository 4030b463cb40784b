// The world outside as the flows meet it: the window is painted before anything that lets events
// run. What is not a call of Systeme goes through Plateau::dehors, which does the same.
#pragma once

#include "ui/bureau/systeme.h"

#include <functional>

namespace orvalis {

/// Paints the window, then runs its argument, inside which other flows stand on their own.
using Dehors = std::function<void(const std::function<void()>&)>;

class Exterieur : public Systeme {
  public:
    /// `systeme` must outlive this object.
    Exterieur(Systeme& systeme, Dehors dehors) : systeme_(systeme), dehors_(std::move(dehors)) {}

    [[nodiscard]] std::filesystem::path Lecteur() const override { return systeme_.Lecteur(); }
    [[nodiscard]] Instant Maintenant() const override { return systeme_.Maintenant(); }
    void Pause(int secondes) override;
    void Informer(QWidget* parent, const QString& titre, const QString& texte) override;
    void Avertir(QWidget* parent, const QString& texte) override;
    [[nodiscard]] QString ChoisirFichier(QWidget* parent, const DemandeFichier& demande) override;
    [[nodiscard]] std::unique_ptr<Imprimante> PreparerImpression(QWidget* parent) override;
    void ConfigurerImprimante(QWidget* parent) override;
    [[nodiscard]] std::filesystem::path DossierInstalle() const override {
        return systeme_.DossierInstalle();
    }
    [[nodiscard]] std::optional<QString> Lancer(const QString& chemin) override {
        return systeme_.Lancer(chemin);
    }
    void Quitter(int code) override;

  private:
    Systeme& systeme_;
    Dehors dehors_;
};

} // namespace orvalis
