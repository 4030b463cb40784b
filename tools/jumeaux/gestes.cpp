// Plays the same gestures on two programs: orvalis_gestes <trace> [gestures] [seed]
// [--menus-ouverts] [--comptes] drives the real window, without a screen, through gestures drawn
// from the seed, and writes what is seen after each; orvalis_gestes --comparer <trace> <trace>
// tells where two such traces part. tools/jumeaux/comparer does both for two trees. With --comptes
// every contact is accounted for after each gesture, while another program now and then puts other
// files in place of the logbook and the label sheet. The window is known by the names of its
// controls alone, so that the same source drives any tree that kept them.
#include "compte.h"
#include "regard.h"
#include "tirages.h"

#if __has_include("ui/orvalis.h")
#include "ui/orvalis.h"
#else
#include "ui/fenetre/orvalis.h"
#endif

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHashSeed>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStyleHints>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

namespace jumeaux {
namespace {

using namespace std::string_literals;

constexpr int kParDossier = 500; // gestures before the drive is a new one

struct Options {
    std::string trace;
    int gestes = 20000;
    std::uint64_t graine = 1;
    bool menusOuverts = false;
    bool comptes = false;
};

class Joueur : public QObject {
  public:
    explicit Joueur(Options options) : options_(std::move(options)), trace_(options_.trace) {
        systeme_.pendantPause = [this] { PendantPause(); };
        qApp->installEventFilter(this);
    }
    ~Joueur() override { qApp->removeEventFilter(this); }

    // Returns the status of the program.
    [[nodiscard]] int Jouer() {
        for (geste_ = 1; geste_ <= options_.gestes; ++geste_) {
            milieu_ = 0;
            systeme_.appels.clear();
            systeme_.alea = Hasard(1);
            Alea a = Hasard(0);
            systeme_.secondes += 1 + a.Sous(40);
            std::string mots;
            if ((geste_ - 1) % kParDossier == 0) {
                NouveauDossier();
                mots = "(dossier) ";
            }
            constexpr int kRarement = 40;
            if (options_.comptes && a.Un(kRarement)) {
                mots += compte_.Deranger(systeme_.Dossier(), a) + " ; ";
                compte_.Prendre(systeme_.Dossier());
            }
            mots += Faire(a);
            Reposer();
            // A dialog that closed leaves the window inactive here, where an operator would not.
            if (fenetre_ && !systeme_.fini && !fenetre_->isActiveWindow())
                Activer();
            if (systeme_.fini) {
                ++comptes_["programme rouvert"];
                Rouvrir();
                mots += " (rouvert)";
            }
            Finir(mots);
        }
        fenetre_.reset();
        return trace_.Fermer() && fautes_ == 0 ? 0 : 1;
    }
    void Dire() const {
        for (const auto& [quoi, nombre] : comptes_)
            std::cout << "  " << quoi << " : " << nombre << '\n';
    }

  protected:
    // A dialog of the program is answered once it stands.
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (evenement->type() == QEvent::Show)
            if (auto* dialogue = qobject_cast<QDialog*>(objet))
                QTimer::singleShot(0, dialogue, [this, dialogue] { Repondre(*dialogue); });
        return false;
    }

  private:
    [[nodiscard]] Alea Hasard(std::uint64_t usage) const {
        return {options_.graine, static_cast<std::uint64_t>(geste_), usage};
    }
    template<typename T> [[nodiscard]] T* Controle(const std::string& nom) const {
        return fenetre_->findChild<T*>(QString::fromStdString(nom));
    }
    [[nodiscard]] QWidget* Prenable(const std::string& nom) const {
        auto* w = Controle<QWidget>(nom);
        return w != nullptr && w->isVisible() && w->isEnabled() ? w : nullptr;
    }
    [[nodiscard]] bool Visible(const char* nom) const {
        const auto* w = Controle<QWidget>(nom);
        return w != nullptr && w->isVisible();
    }
    [[nodiscard]] static std::string NomDuFoyer() {
        const QWidget* foyer = QApplication::focusWidget();
        return foyer == nullptr ? "" : foyer->objectName().toStdString();
    }
    // The number behind a prefix; 0 for another name.
    [[nodiscard]] static int Numero(const std::string& nom, const char* prefixe) {
        return nom.starts_with(prefixe) ? std::atoi(nom.c_str() + std::strlen(prefixe)) : 0;
    }

    // -- the window

    void NouveauDossier() {
        fenetre_.reset();
        const int rang = (geste_ - 1) / kParDossier;
        disque_.reset();
        disque_ = std::make_unique<Disque>(options_.graine, rang);
        systeme_.lecteur = disque_->Racine();
        QGuiApplication::clipboard()->clear();
        regard_ = std::make_unique<Regard>(disque_->Racine().string());
        Rouvrir();
        ++comptes_["dossiers"];
    }
    void Rouvrir() {
        horloges_.clear();
        fenetre_.reset();
        Reposer();
        systeme_.fini = false;
        fenetre_ = std::make_unique<orvalis::Orvalis>(systeme_);
        fenetre_->show();
        Activer();
        constexpr int kEssais = 500;
        for (int i = 0; i < kEssais && !systeme_.fini; ++i) {
            if (fenetre_->windowTitle().startsWith(QLatin1String(" Cahier de Trafic de ")))
                break;
            QTest::qWait(1);
        }
        Activer();
        ArreterHorloges();
        Reposer();
    }
    void Activer() const {
        fenetre_->activateWindow();
        static_cast<void>(
            QTest::qWaitFor([this] { return systeme_.fini || fenetre_->isActiveWindow(); }, 1000));
    }
    // The clock ticks when the play says so, and not when a second has gone by.
    void ArreterHorloges() {
        horloges_.clear();
        for (QTimer* t : fenetre_->findChildren<QTimer*>())
            if (t->isActive() && !t->isSingleShot() && t->interval() >= 500) {
                t->setInterval(INT_MAX);
                horloges_.push_back(t);
            }
    }
    void Tic() const {
        for (QTimer* t : horloges_) {
            QTimerEvent tic(t->timerId());
            QCoreApplication::sendEvent(t, &tic);
        }
    }
    static void Reposer() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // -- blocks

    void Noter(const std::string& mots) {
        trace_.Ecrire(geste_, ++milieu_, mots, regard_->Voir(*fenetre_, systeme_));
    }
    void Finir(const std::string& mots) {
        Etat etat = regard_->Voir(*fenetre_, systeme_);
        trace_.Ecrire(geste_, 0, mots, etat);
        Compter(etat, mots);
        if (options_.comptes)
            Verifier(etat, mots);
        avant_ = std::move(etat);
        etiquettesAvant_ = regard_->Etiquettes();
    }
    [[nodiscard]] static int Contacts(const Etat& etat) {
        const std::string& texte = Lire(etat, "LabJournal", "texte");
        const auto place = texte.find(" : ");
        return place == std::string::npos ? -1 : std::atoi(texte.c_str() + place + 3);
    }
    void Compter(const Etat& etat, const std::string& mots) {
        const auto un = [this](const char* quoi, bool fait) { comptes_[quoi] += fait ? 1 : 0; };
        const auto vu = [](const Etat& e, const char* nom) {
            return Lire(e, nom, "visible") == "1";
        };
        const auto avait = [&](const char* nom) { return vu(avant_, nom); };
        const auto parti = [&](const char* nom) { return avait(nom) && !vu(etat, nom); };
        const auto venu = [&](const char* nom) { return !avait(nom) && vu(etat, nom); };
        const std::string& appels = Lire(etat, "(systeme)", "appels");
        const auto appel = [&](const char* t) { return appels.find(t) != std::string::npos; };
        un("gestes refusés", mots.ends_with("refusé"));
        un("messages", appel("avertit") || appel("informe"));
        un("pauses", appel("pause"));
        un("pages et planches imprimées", appel("imprimé"));
        un("impressions annulées ou en panne",
           appel("impression annulée") || appel("pas d'imprimante") || appel("en panne"));
        un("fichiers demandés", appel("ouvrir :") || appel("enregistrer :"));
        if (mots.find("(dossier)") != std::string::npos || mots.ends_with("(rouvert)"))
            return;
        const auto nom = [](const Etat& e) {
            const std::string& t = Lire(e, "LabJournal", "texte");
            return t.substr(0, t.find(" : "));
        };
        const int ecart = nom(etat) == nom(avant_) ? Contacts(etat) - Contacts(avant_) : 0;
        un("autres cahiers ouverts ou quittés", nom(etat) != nom(avant_));
        un("contacts enregistrés", ecart == 1 && avait("PictEnrs"));
        un("saisies commencées", venu("PictEnrs"));
        un("suppressions", ecart == -1 && parti("FraMsgFiche"));
        un("jumelages", ecart > 0 && avait("PJumelage"));
        const bool cahier = CahierChange(etat);
        un("corrections enregistrées", ecart == 0 && cahier && parti("FraMsgFiche"));
        un("questions Oui/Non", venu("FraMsgFiche"));
        un("tris", mots.find("menu MnuClasser") != std::string::npos && !mots.ends_with("refusé"));
        un("tris qui changent le cahier", cahier && mots.find("MnuClasser") != std::string::npos);
        un("listes de contacts", venu("PictContacts"));
        un("doublons",
           mots.find("menu MnuDoublons") != std::string::npos && !mots.ends_with("refusé"));
        un("recherches", venu("PictContacts") && (!Lire(avant_, "RechText", "texte").empty() ||
                                                  mots.find("RechText") != std::string::npos));
        un("panneaux du locator", venu("PictChangLocator"));
        un("locators changés",
           parti("PictChangLocator") &&
               Lire(etat, "TxtField_16", "texte") != Lire(avant_, "TxtField_16", "texte"));
        un("locators gardés dans les réglages", Lire(etat, "(fichier Parvel.cfg)", "octets") !=
                                                    Lire(avant_, "(fichier Parvel.cfg)", "octets"));
        un("feuilles d'étiquettes ouvertes", venu("PictFeuilleQSL"));
        const int etiquettes = regard_->Etiquettes() - etiquettesAvant_;
        un("étiquettes placées", etiquettes > 0);
        un("étiquettes supprimées", etiquettes < 0 && !avait("PictCtrlImpression"));
        un("planches contrôlées et libérées", etiquettes < 0 && avait("PictCtrlImpression"));
        un("planches imprimées", venu("PictCtrlImpression"));
        un("planches à revoir", parti("PictCtrlImpression") && etiquettes == 0);
    }
    void Verifier(const Etat& etat, const std::string& mots) {
        const auto passe = [&](const char* nom) {
            return Lire(avant_, nom, "visible") == "1" || Lire(etat, nom, "visible") == "1";
        };
        const bool pause = Lire(etat, "(systeme)", "appels").find("pause") != std::string::npos;
        const bool neuf = mots.find("(dossier)") != std::string::npos;
        const Permis permis = {passe("FraMsgFiche") || pause,
                               passe("PictFeuilleQSL") || passe("PictCtrlImpression"),
                               passe("PJumelage")};
        const std::string faute = compte_.Verifier(systeme_.Dossier(), permis);
        if (faute.empty() || neuf)
            return;
        ++fautes_;
        std::cout << "geste " << geste_ << " (" << mots << ") : " << faute
                  << "dit : " << Lire(etat, "(systeme)", "appels") << std::endl;
    }
    [[nodiscard]] bool CahierChange(const Etat& etat) const {
        return std::any_of(etat.begin(), etat.end(), [this](const Valeur& v) {
            return v.controle.ends_with(".Vek)") && v.propriete == "octets" &&
                   v.texte != Lire(avant_, v.controle, v.propriete);
        });
    }

    // -- single gestures; each returns its words

    std::string Cliquer(const std::string& nom) {
        QWidget* w = Prenable(nom);
        if (w == nullptr)
            return "clic " + nom + " refusé";
        QTest::mouseClick(w, Qt::LeftButton);
        return "clic " + nom;
    }
    std::string CliquerDroit(const std::string& nom) {
        QWidget* w = Prenable(nom);
        if (w == nullptr)
            return "clic droit " + nom + " refusé";
        const QPoint milieu = w->rect().center();
        QTest::mousePress(w, Qt::RightButton, {}, milieu);
        QContextMenuEvent demande(QContextMenuEvent::Mouse, milieu, w->mapToGlobal(milieu));
        QCoreApplication::sendEvent(w, &demande);
        QCoreApplication::processEvents();
        FermerSurgies();
        QTest::mouseRelease(w, Qt::RightButton, {}, milieu);
        return "clic droit " + nom;
    }
    static void FermerSurgies() {
        for (int i = 0; i < 4; ++i)
            if (QWidget* surgie = QApplication::activePopupWidget()) {
                QTest::keyClick(surgie, Qt::Key_Escape);
                QCoreApplication::processEvents();
            }
        while (QWidget* surgie = QApplication::activePopupWidget())
            surgie->close();
    }
    std::string Commander(Alea& a, const std::string& nom) {
        auto* action = Controle<QAction>(nom);
        if (action == nullptr || (!action->isEnabled() && !a.Un(8)))
            return "menu " + nom + " refusé";
        const std::string suite = action->isEnabled() ? "" : " quand même, refusé";
        action->trigger();
        return "menu " + nom + suite;
    }
    // As the window system does; only letters with Alt have to go to the control that has the
    // focus, for else no mnemonic is tried.
    void Touche(Qt::Key touche, Qt::KeyboardModifiers avec = Qt::NoModifier) const {
        QWidget* foyer = QApplication::focusWidget();
        if (touche == Qt::Key_Return)
            QTest::qSleep(2); // presses of one instant would be those of a held key
        if (avec.testFlag(Qt::AltModifier) && foyer != nullptr)
            QTest::keyClick(foyer, touche, avec);
        else if (QWindow* w = (foyer == nullptr ? fenetre_.get() : foyer->window())->windowHandle())
            QTest::keyClick(w, touche, avec);
        QCoreApplication::processEvents();
    }
    std::string Taper(const std::string& texte, bool entree) const {
        const QString lettres = QString::fromStdString(texte);
        for (const QChar c : lettres)
            if (QWidget* foyer = QApplication::focusWidget())
                QTest::sendKeyEvent(QTest::Click, foyer, Qt::Key_unknown, QString(c),
                                    Qt::NoModifier);
        if (entree)
            Touche(Qt::Key_Return);
        return "tape «" + texte + "»" + (entree ? " Entrée" : "");
    }
    // A text in place of what stands in the box, as an operator who sees it would do.
    std::string Remplir(Alea& a, const std::string& texte) const {
        const std::string nom = NomDuFoyer();
        if (!a.Un(5))
            Touche(Qt::Key_A, Qt::ControlModifier);
        if (texte.empty() && a.Un(2))
            Touche(Qt::Key_Backspace);
        return nom + " " + Taper(texte, !a.Un(10));
    }
    std::string CliquerLigne(const std::string& nom, int rang) {
        QWidget* w = Prenable(nom);
        auto* liste = qobject_cast<QListWidget*>(w);
        const std::string mots = nom + " ligne " + std::to_string(rang);
        if (liste == nullptr || rang >= liste->count())
            return mots + " refusé";
        liste->scrollToItem(liste->item(rang));
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualItemRect(liste->item(rang)).center());
        return mots;
    }
    std::string CliquerRangee(int rang) {
        auto* feuille = qobject_cast<QAbstractScrollArea*>(Prenable("PageText1"));
        const std::string mots = "feuille, rangée " + std::to_string(rang);
        if (feuille == nullptr)
            return mots + " refusé";
        QTest::mouseClick(feuille->viewport(), Qt::LeftButton, {},
                          PointDeRangee<Feuille>(*feuille, rang));
        return mots;
    }
    std::string Defiler(Alea& a) {
        auto* barre = qobject_cast<QAbstractSlider*>(Prenable("VScroll1"));
        const int part = a.Sous(101);
        const std::string mots = "barre " + std::to_string(part) + " %";
        if (barre == nullptr)
            return mots + " refusé";
        barre->setValue(barre->minimum() + (barre->maximum() - barre->minimum()) * part / 100);
        return mots;
    }
    std::string OuvrirMenus(Alea& a) {
        if (!options_.menusOuverts) {
            Tic();
            return "tic";
        }
        Touche(Qt::Key_F10);
        constexpr std::array<Qt::Key, 3> kTouches = {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left};
        std::string mots = "F10";
        for (int n = a.Sous(4); n > 0; --n) {
            const Qt::Key touche = a.Parmi(kTouches);
            QWidget* surgie = QApplication::activePopupWidget();
            QTest::keyClick(surgie != nullptr ? surgie : fenetre_->menuBar(), touche);
            QCoreApplication::processEvents();
            mots += touche == Qt::Key_Right  ? " droite"
                    : touche == Qt::Key_Down ? " bas"
                                             : " gauche";
        }
        Noter(mots);
        FermerSurgies();
        for (int i = 0; i < 2 && qobject_cast<QMenuBar*>(QApplication::focusWidget()); ++i)
            Touche(Qt::Key_Escape);
        return mots + " Échap";
    }

    // -- gestures by kind

    [[nodiscard]] std::string Faire(Alea& a) {
        const std::string genre = Peser(a, kGenres);
        using Geste = std::string (Joueur::*)(Alea&);
        static const std::map<std::string, Geste> kGestes = {
            {"guide", &Joueur::Guider},          {"bouton", &Joueur::UnBouton},
            {"menu", &Joueur::UnMenu},           {"barre", &Joueur::Defiler},
            {"menubarre", &Joueur::OuvrirMenus}, {"alt", &Joueur::UneLettreAlt},
            {"ctrl", &Joueur::UnCtrl},           {"fleches", &Joueur::UneFleche},
            {"texte", &Joueur::UnTexte}};
        static const std::map<std::string, Qt::Key> kTouches = {{"f2", Qt::Key_F2},
                                                                {"entree", Qt::Key_Return},
                                                                {"retour", Qt::Key_Backspace},
                                                                {"echap", Qt::Key_Escape},
                                                                {"espace", Qt::Key_Space}};
        if (const auto geste = kGestes.find(genre); geste != kGestes.end())
            return (this->*geste->second)(a);
        if (const auto touche = kTouches.find(genre); touche != kTouches.end()) {
            Touche(touche->second);
            return "touche " + genre;
        }
        if (genre == "tab") {
            const bool arriere = a.Un(4);
            Touche(arriere ? Qt::Key_Backtab : Qt::Key_Tab,
                   arriere ? Qt::ShiftModifier : Qt::NoModifier);
            return arriere ? "Maj+Tab" : "Tab";
        }
        if (genre == "boite")
            return Cliquer("TxtField_" + std::to_string(1 + a.Sous(17)));
        if (genre == "droite")
            return CliquerDroit(a.Un(4) ? "RechText"
                                        : "TxtField_" + std::to_string(1 + a.Sous(17)));
        if (genre == "ligne")
            return CliquerLigne("ListeLog", a.Sous(kRangees));
        if (genre == "contact")
            return CliquerLigne("ContactsListe", a.Sous(6));
        if (genre == "rangee")
            return CliquerRangee(a.Sous(kRangees));
        if (genre == "recherche")
            return Cliquer("RechText");
        if (genre == "locator")
            return Cliquer("ChangLocText");
        if (genre == "feuille")
            return Cliquer("FLdText_" + std::to_string(1 + a.Sous(11)));
        if (genre == "heure") {
            Tic();
            return "tic";
        }
        return "rien";
    }
    std::string UnBouton(Alea& a) {
        std::string nom = Peser(a, kBoutons);
        if (nom.ends_with('_'))
            nom += std::to_string(1 + a.Sous(a.Un(2) ? 3 : 16));
        return Cliquer(nom);
    }
    std::string UnMenu(Alea& a) { return Commander(a, Peser(a, kMenus)); }
    std::string UneLettreAlt(Alea& a) {
        constexpr std::string_view kLettres = "SSTTAAEDNNFOLRVBIQWXZ";
        const char lettre = a.Parmi(kLettres);
        Touche(static_cast<Qt::Key>(lettre), Qt::AltModifier);
        return "Alt+"s + lettre;
    }
    std::string UnCtrl(Alea& a) {
        constexpr std::string_view kLettres = "AAAAZCVX";
        const char lettre = a.Parmi(kLettres);
        Touche(static_cast<Qt::Key>(lettre), Qt::ControlModifier);
        return "Ctrl+"s + lettre;
    }
    std::string UneFleche(Alea& a) {
        constexpr std::array<std::pair<const char*, Qt::Key>, 8> kTouches = {
            {{"haut", Qt::Key_Up},
             {"bas", Qt::Key_Down},
             {"page haut", Qt::Key_PageUp},
             {"page bas", Qt::Key_PageDown},
             {"début", Qt::Key_Home},
             {"fin", Qt::Key_End},
             {"gauche", Qt::Key_Left},
             {"droite", Qt::Key_Right}}};
        const auto& [nom, touche] = a.Parmi(kTouches);
        Touche(touche);
        return nom;
    }
    std::string UnTexte(Alea& a) {
        const std::string texte = a.Un(2) ? a.Parmi(kFatras) : TexteDeSaisie(a, 1 + a.Sous(17));
        return Taper(texte, a.Un(2));
    }

    // -- the guided gesture: what an operator would do next

    std::string Guider(Alea& a) {
        if (Visible("FraMsgFiche") && !a.Un(5))
            return "guide: " + Cliquer(a.Sous(10) < 7 ? "FraCmdOui" : "FraCmdNon");
        if (Visible("PictCtrlImpression"))
            return "guide: " + Cliquer(a.Sous(10) < 6 ? "BtCtrl_Parfait" : "BtCtrl_Revoir");
        if (Visible("PictFeuilleQSL"))
            return "guide: " + GuiderFeuille(a);
        if (Visible("PictChangLocator") && !a.Un(5))
            return "guide: " + GuiderLocator(a);
        if (Visible("PictEnrs"))
            return "guide: " + GuiderSaisie(a);
        if (Visible("PJumelage") && !a.Un(4))
            return "guide: " +
                   UnDe(a, {{"BtPjumeler", 4}, {"BtPjSauvegarder", 2}, {"BtPjAnnuler", 3}});
        if (Visible("PictContacts") && !a.Un(4))
            return "guide: " + (a.Un(2) ? CliquerLigne("ContactsListe", a.Sous(3))
                                        : Cliquer("BtContactsFermer"));
        return "guide: " + GuiderCahier(a);
    }
    // One of those that can be clicked.
    std::string UnDe(Alea& a, std::vector<Poids> choix) {
        std::erase_if(choix, [this](const Poids& p) {
            const std::string nom = p.nom;
            return Prenable(nom.ends_with('_') ? nom + "1" : nom) == nullptr;
        });
        const char* nom = Peser(a, choix);
        if (nom == nullptr)
            return "rien à cliquer";
        const std::string numero = std::to_string(1 + a.Sous(4));
        return Cliquer(nom + (std::strchr(nom, '_') == nom + std::strlen(nom) - 1 ? numero : ""));
    }
    std::string GuiderSaisie(Alea& a) {
        const std::string foyer = NomDuFoyer();
        if (a.Un(30))
            return Cliquer("BtEnrTerminer");
        if (a.Un(25))
            return Cliquer("TxtField_" + std::to_string(1 + a.Sous(17)));
        if (foyer == "BtEnrSuivant") {
            Touche(Qt::Key_Return);
            return foyer + " Entrée";
        }
        if (Prenable("BtEnrSuivant") != nullptr && a.Un(6))
            return Cliquer("BtEnrSuivant");
        if (const int n = Numero(foyer, "TxtField_")) {
            // In real time these take nothing, and the operator would go on at the next.
            const auto* reel = Controle<QAbstractButton>("OptionEnr1");
            if (n >= 2 && n <= 4 && reel != nullptr && reel->isChecked() && !a.Un(4))
                return Cliquer("TxtField_5");
            if (const int manquante = BoiteManquante(n); manquante != n && !a.Un(4))
                return Cliquer("TxtField_" + std::to_string(manquante));
            return Remplir(a, TexteDeSaisie(a, n));
        }
        return Cliquer(a.Un(3) ? "BtEnrSuivant" : "TxtField_1");
    }
    // The box without which this one leads nowhere; the same one when it leads on.
    [[nodiscard]] int BoiteManquante(int n) const {
        constexpr int kDerniereExigee = 8;
        const auto vide = [this](int boite) {
            const auto* b = Controle<QLineEdit>("TxtField_" + std::to_string(boite));
            return b != nullptr && b->text().isEmpty();
        };
        if (n != 1 && vide(1))
            return 1;
        if (n <= kDerniereExigee || Prenable("BtEnrSuivant") != nullptr)
            return n;
        return vide(5) ? 5 : kDerniereExigee;
    }
    std::string GuiderLocator(Alea& a) {
        if (NomDuFoyer() == "ChangLocText")
            return Remplir(a, TexteDeSaisie(a, 16));
        if (Prenable("BtChangValid") == nullptr && !a.Un(3))
            return Cliquer("ChangLocText");
        return UnDe(a, {{"BtChangValid", 12}, {"ChangLocChk", 7}, {"BtChangAnnul", 1}});
    }
    std::string GuiderFeuille(Alea& a) {
        if (const int n = Numero(NomDuFoyer(), "FLdText_"); n != 0 && !a.Un(3))
            return Remplir(a, TexteDEtiquette(a, n));
        // A label that has its callsign wants its route, and then its place.
        const auto* indicatif = Controle<QLineEdit>("FLdText_1");
        const bool prete = indicatif != nullptr && !indicatif->text().isEmpty();
        return UnDe(a, {{"BtValidQSL", prete ? 60 : 5},
                        {"BtDelQSL", 60},
                        {"BtLeaveQSL", 10},
                        {"OptBureau", prete ? 12 : 3},
                        {"OptDirect", prete ? 8 : 2},
                        {"BtPrintQSL", 16},
                        {"BtQuitQSL", prete ? 3 : 12},
                        {"BtRestore", 3},
                        {"BtChoix_", prete ? 2 : 16},
                        {"BtTag_", prete ? 1 : 6}});
    }
    std::string GuiderCahier(Alea& a) {
        const auto* journal = Controle<QLabel>("LabJournal");
        if (journal != nullptr && journal->text().contains(QLatin1String("lecture")) && a.Un(3))
            return Commander(a, "MnuCourantF");
        const std::string foyer = NomDuFoyer();
        if (const int n = Numero(foyer, "TxtField_"); n != 0 && !a.Un(3))
            return Remplir(a, TexteDeSaisie(a, n));
        if (foyer == "RechText" && a.Un(2))
            return Remplir(a, TexteDeSaisie(a, 1));
        const int sort = a.Sous(100);
        if (sort < 28)
            return Cliquer("BtNewQSO");
        if (sort < 42)
            return Cliquer("TxtField_" + std::to_string(1 + a.Sous(17)));
        if (sort < 48)
            return Cliquer("TxtField_14");
        if (sort < 57)
            return Cliquer("BtKillFiche");
        if (sort < 63) {
            const std::string mots = Cliquer("RechText");
            return mots + " " +
                   (NomDuFoyer() == "RechText" ? Remplir(a, a.Parmi(kIndicatifs)) : "");
        }
        if (sort < 66)
            return Cliquer("BtActiveRech");
        if (sort < 74)
            return CliquerLigne("ListeLog", a.Sous(kRangees));
        if (sort < 78)
            return CliquerRangee(a.Sous(kRangees));
        if (sort < 83)
            return UnDe(
                a,
                {{"CmdSensHaut", 1}, {"CmdSensBas", 1}, {"CmdPageMoins", 1}, {"CmdPagePlus", 1}});
        constexpr std::array<Poids, 7> kSuites = {{{"MnuJumeler", 3},
                                                   {"MnuGestionFeuilleQSL", 6},
                                                   {"MnuClasser", 2},
                                                   {"MnuDoublons", 2},
                                                   {"MnuAutreF", 2},
                                                   {"MnuCourantF", 1},
                                                   {"MnuImpPage", 1}}};
        return Commander(a, Peser(a, kSuites));
    }

    // -- in the middle of a gesture

    // The operator goes on while the program waits: what a box shows then is seen too.
    void PendantPause() {
        if (fenetre_ == nullptr)
            return;
        Noter("pause");
        Alea a = Hasard(1000 + static_cast<std::uint64_t>(milieu_));
        if (!a.Un(2))
            return;
        ++comptes_["gestes pendant une pause"];
        std::string mots = "pendant la pause :";
        for (int n = 1 + a.Sous(2); n > 0; --n)
            switch (a.Sous(6)) {
            case 0:
                Tic();
                mots += " tic";
                break;
            case 1:
                mots += " " + UnBouton(a);
                break;
            case 2:
                mots += " " + UnMenu(a);
                break;
            case 3:
                Touche(Qt::Key_Return);
                mots += " Entrée";
                break;
            case 4:
                mots += " " + Cliquer("TxtField_" + std::to_string(1 + a.Sous(17)));
                break;
            default:
                mots += " " + Taper(a.Parmi(kFatras), a.Un(2));
            }
        QCoreApplication::processEvents();
        Noter(mots);
    }
    void Repondre(QDialog& dialogue) {
        ++comptes_["dialogues du programme"];
        const std::string nom = dialogue.objectName().toStdString();
        Noter("dialogue " + nom);
        Alea a = Hasard(2000 + static_cast<std::uint64_t>(milieu_));
        for (int n = a.Sous(4); n > 0; --n) {
            static const Textes kTextes = {"JN18EU", "48.5", "12", "S", "ZZ99", "2.35", "W"};
            const bool tab = a.Un(3);
            std::string mots = tab ? "Tab" : "";
            if (tab)
                Touche(Qt::Key_Tab);
            else if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr)
                mots = Taper(a.Parmi(kTextes), a.Un(2));
            Noter("dialogue " + nom + " " + mots);
            if (!dialogue.isVisible())
                return;
        }
        Touche(Qt::Key_Escape);
        if (dialogue.isVisible())
            dialogue.reject();
        // The events handled meanwhile made the dialog's loop forget that it is over; with the
        // clocks stopped nothing else would wake it.
        QTimer::singleShot(0, qApp, [] {});
    }

    Options options_;
    Trace trace_;
    SystemeJumeau systeme_;
    std::unique_ptr<Disque> disque_;
    std::unique_ptr<Regard> regard_;
    std::unique_ptr<orvalis::Orvalis> fenetre_;
    std::vector<QTimer*> horloges_;
    Etat avant_;
    Compte compte_;
    int fautes_ = 0; // gestures after which a contact was missing
    int etiquettesAvant_ = 0;
    int geste_ = 0;
    int milieu_ = 0; // blocks written in the middle of this gesture
    std::map<std::string, int> comptes_;
};

int Lancer(const std::vector<std::string>& arguments) {
    Options options;
    std::vector<std::string> libres;
    for (const std::string& argument : arguments)
        if (argument == "--menus-ouverts")
            options.menusOuverts = true;
        else if (argument == "--comptes")
            options.comptes = true;
        else
            libres.push_back(argument);
    if (libres.size() == 3 && libres[0] == "--comparer")
        return Comparaison(libres[1], libres[2]).Faire() ? 0 : 1;
    if (libres.empty() || libres.size() > 3) {
        std::cerr << "usage: orvalis_gestes <trace> [gestures] [seed] [--menus-ouverts] "
                     "[--comptes]\n"
                     "       orvalis_gestes --comparer <trace> <trace>\n";
        return 2;
    }
    options.trace = libres[0];
    if (libres.size() > 1)
        options.gestes = std::stoi(libres[1]);
    if (libres.size() > 2)
        options.graine = std::stoull(libres[2]);
    QElapsedTimer duree;
    duree.start();
    Joueur joueur(options);
    const int code = joueur.Jouer();
    std::cout << options.gestes << " gestes, graine " << options.graine << ", "
              << duree.elapsed() / 1000 << " s\n";
    joueur.Dire();
    return code;
}

} // namespace
} // namespace jumeaux

int main(int nbArguments, char** arguments) try {
    // Nothing that differs from run to run may reach the window.
    QHashSeed::setDeterministicGlobalSeed();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    QApplication application(nbArguments, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    // Letters typed into a list select by a prefix that forgets itself after a while: here at once.
    QGuiApplication::styleHints()->setKeyboardInputInterval(-1);
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    return jumeaux::Lancer({arguments + 1, arguments + nbArguments});
} catch (const std::exception& erreur) {
    std::cerr << "orvalis_gestes: " << erreur.what() << '\n';
    return 2;
}
