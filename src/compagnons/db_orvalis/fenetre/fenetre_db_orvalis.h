// The window of dbOrvalis: the logbook that it reads, and what can be made of it.
#pragma once

#include "compagnons/db_orvalis/bilan_dessin.h"
#include "compagnons/db_orvalis/fenetre/demandes.h"
#include "compagnons/db_orvalis/fenetre/dlg_apercu.h"
#include "compagnons/db_orvalis/fenetre/dlg_heures.h"
#include "compagnons/db_orvalis/fenetre/lab_chemin.h"
#include "compagnons/db_orvalis/fenetre/travail.h"
#include "compagnons/db_orvalis/phrases.h"
#include "compagnons/db_orvalis/station_lue.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace orvalis {

/// What the window shows.
struct EtatDb {
    std::optional<StationLue> station;
    std::filesystem::path cahier;      ///< empty as long as none is known
    std::optional<FeuilleBilan> bilan; ///< of that logbook as it was read last
    QString message;
    bool faute = false;  ///< the message tells of something that went wrong
    bool occupe = false; ///< a work is under way
};

/// Where the program is started.
struct Lieu {
    std::filesystem::path courant; ///< current folder, from which the drive follows
    std::filesystem::path maison;  ///< the user's own folder
};

class FenetreDbOrvalis : public QWidget {
    Q_OBJECT
  public:
    FenetreDbOrvalis(Lieu lieu, Demandes demandes);

  Q_SIGNALS:
    /// A work has come to its end and is told.
    void Fini();

  private:
    void Composer();
    void Montrer();
    void Dire(const QString& message, bool faute = false);
    void LireCahier(const std::filesystem::path& chemin, std::function<void()> ensuite = {});
    void ChoisirCahier();
    void RevenirALaStation();
    void Sortir(std::size_t sortie);
    void MontrerBilan();
    void Importer();
    void MontrerApercu(const DemandeImport& demande, const std::string& zone,
                       const EtudeImport& etude);
    /// Asks what the hours are, and the station's locator with `locator`; nothing when that was
    /// cancelled.
    [[nodiscard]] std::optional<ReponseHeures> DemanderHeures(const QString& question,
                                                              bool locator = false);
    /// Lets `faire` work beside the window, with the hours of `zone`; then `finir`, unless it
    /// failed, which is told.
    void Travailler(const QString& quoi, const std::string& zone,
                    std::function<void(const Fuseau&)> faire, std::function<void()> finir);
    [[nodiscard]] QString Propose(const QString& suffixe) const;

    Lieu lieu_;
    Demandes demandes_;
    EtatDb etat_;
    std::unique_ptr<Fuseau> fuseau_; ///< of the work under way
    LabChemin* cahier_ = nullptr;
    QLabel* contenu_ = nullptr;
    QLabel* message_ = nullptr;
    QProgressBar* progression_ = nullptr;
    QPushButton* choisir_ = nullptr;
    QPushButton* revenir_ = nullptr;
    QPushButton* importer_ = nullptr;
    std::vector<QPushButton*> surCahier_; ///< what a logbook is needed for
    QWidget* foyer_ = nullptr;            ///< what had the focus when the work began
    Travail travail_;                     ///< last, so that it ends before what it works with goes
};

} // namespace orvalis
