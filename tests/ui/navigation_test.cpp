// Browsing: pages, list keys, scroll bar, sheet, card.
#include "ui/banc.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

namespace orvalis::operateur::navigation {

TEST(Navigation, TaillesDeCahier) {
    // Contacts; whether there is a page before, and page, line, card and focus at the start.
    const std::pair<int, const char*> cas[] = {
        {0, "grisé Page 1 / 1|0/0|  Fiche N° 0  |BtNewQSO"},
        {1, "grisé Page 1 / 1|1/1| Fiche N° 1 |ListeLog"},
        {25, "grisé Page 1 / 1|25/25| Fiche N° 25 |ListeLog"},
        {26, "actif Page 2 / 2|1/1| Fiche N° 26 |ListeLog"},
        {33000, "actif Page 1311 / 1311|17/17| Fiche N° 32767 |ListeLog"}};
    for (const auto& [n, vus] : cas) {
        const Banc banc(Contacts(n) + Fin());
        std::string vu = banc.Etat("CmdPageMoins") + ' ' + banc.Texte("LabPage");
        for (const char* nom : {"ligne", "NoFicheLab", "foyer"})
            vu += '|' + banc.Texte(nom);
        EXPECT_EQ(vu, vus);
        EXPECT_EQ(banc.Controle<QScrollBar>("VScroll1")->maximum(), n);
        EXPECT_EQ(banc.Controle<QScrollBar>("VScroll1")->value(), n);
    }
}

TEST(Navigation, TouchesEtBoutons) {
    Banc banc(Contacts(60) + Fin());
    banc.groupes["ici"] = "LabPage NoFicheLab";
    banc.Suivre(R"(
 no page behind the last : touche PgDown -> ici = "Page 3 / 3| Fiche N° 60 "
 to the first of the page before : touche PgUp -> ici = "Page 2 / 3| Fiche N° 26 "
 over the edge of a page : touche Up -> ici = "Page 1 / 3| Fiche N° 25 "
 and back : touche Down -> ici = "Page 2 / 3| Fiche N° 26 "
 within the page : touche Down -> ici = "Page 2 / 3| Fiche N° 27 "
 to the first of the next page : touche PgDown -> ici = "Page 3 / 3| Fiche N° 51 "
 first contact : clic CmdSensHaut -> ici = "Page 1 / 3| Fiche N° 1 "
 no page before the first : clic CmdPageMoins -> ici = "Page 1 / 3| Fiche N° 1 "
 the card stays : clic CmdPagePlus -> ici = "Page 2 / 3| Fiche N° 1 "
 and stays : clic CmdPagePlus -> ici = "Page 3 / 3| Fiche N° 1 "
 back, to its first : clic CmdPageMoins -> ici = "Page 2 / 3| Fiche N° 26 "
 last page : clic CmdSensBas -> ici = "Page 3 / 3| Fiche N° 26 "
 buttons by key : touche Alt+Home, Alt+PgDown, Alt+End, Alt+PgUp -> ici = "Page 2 / 3| Fiche N° 26 "
 found contacts beside the list : touche Alt+C; foyer ListeLog; touche Tab -> foyer = ContactsListe
 and their button : touche Tab, Tab -> foyer = CmdSensHaut
 closed : touche Esc -> caché PictContacts; ici = "Page 2 / 3| Fiche N° 26 ")");
    for (const char* sous : {"ListeLog", "PageText1"}) { // the wheel, over what shows all its lines
        auto* vue = banc.Controle<QAbstractScrollArea>(sous)->viewport();
        QWheelEvent cran({9, 9}, vue->mapToGlobal(QPointF(9, 9)), {}, {0, 120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        banc.Suivre(" last page : clic CmdSensBas -> LabPage = \"Page 3 / 3\"");
        QCoreApplication::sendEvent(vue, &cran);
        banc.Suivre(" wheel : -> LabPage = \"Page 2 / 3\"");
    }
    banc.Suivre(" last page : clic CmdSensBas -> ici = \"Page 3 / 3| Fiche N° 26 \"");
    for (int i = 0; i < 2; ++i)
        banc.Controle<QScrollBar>("VScroll1")->triggerAction(QScrollBar::SliderPageStepSub);
    banc.Suivre(R"(
 scrolled : -> ici = "Page 1 / 3| Fiche N° 26 "
 typed : ligne 2; foyer ListeLog; tape 3 -> ici = "Page 1 / 3| Fiche N° 2 "
 End : touche End -> ici = "Page 1 / 3| Fiche N° 25 "
 menus : touche Alt+N, F10 -> actif NmuFilect
 next menu : touche Right -> actif MnuLister)");
}

TEST(Navigation, DerriereLaDerniereFicheListee) {
    const std::string loin = Octets("G9LOIN|13/05/02");
    Banc banc(Contacts(32990) + loin + Contacts(9) + Fin());
    banc.groupes["ici"] = "LabPage NoFicheLab";
    banc.Suivre(R"(
 found : foyer RechText; valide g9loin -> ici = "Page 1311 / 1311| Fiche N° 32991 "
 none behind : clic BtContactsFermer; foyer ListeLog; touche PgDown
     -> ici = "Page 1311 / 1311| Fiche N° 32991 "
 the last one before : touche PgUp -> ici = "Page 1311 / 1311| Fiche N° 32751 ")");
}

// Outside entry and correction, what a search or a list of contacts chooses is seen in its page.
TEST(Navigation, LaPageSuitLeContactTrouve) {
    Banc banc(Contacts(60) + Octets("F3QSO/P") + Fin());
    banc.groupes["ici"] = "NoFicheLab LabPage ligne";
    banc.Suivre(R"(
 search : foyer RechText; valide f3qso -> ici = " Fiche N° 3 |Page 1 / 3|3/25"; PageText1 contient
     F3QSO
 line of the contacts : touche Tab; foyer ContactsListe; touche Down
     -> ici = " Fiche N° 61 |Page 3 / 3|11/11"
 list of the station : clic BtContactsFermer; ligne 2; clic BtActiveRech
     -> ici = " Fiche N° 52 |Page 3 / 3|2/11"
 under correction it stays : clic BtContactsFermer; foyer RechText; valide f3qso; clic TxtField_12;
     valide Luc; foyer ContactsListe; touche Down -> ici = " Fiche N° 61 |Page 1 / 3|3/25"
 in entry it stays : clic BtContactsFermer, BtNewQSO; valide f30qso; clic BtActiveRech
     -> LabPage ligne = "Page 3 / 3|11/11")");
}

// A list that takes the focus without a current line must not choose one by itself.
TEST(Navigation, LaCarteNeChangePasToutSeule) {
    Banc banc(Contacts(60) + Fin());
    banc.Suivre(R"(
 pages : clic CmdPageMoins, CmdPagePlus -> NoFicheLab = " Fiche N° 26 "; actif BtNewQSO
 focus : clic CmdSensBas; foyer ListeLog -> NoFicheLab = " Fiche N° 26 "; actif BtNewQSO
 deletion : clic CmdSensBas, BtKillFiche, FraCmdNon -> NoFicheLab = " Fiche N° 26 "; actif BtNewQSO
 list : clic CmdSensBas, BtActiveRech, BtContactsFermer -> NoFicheLab = " Fiche N° 26 ";
     actif BtNewQSO
 correction : clic CmdSensBas, TxtField_12; valide Zoe; clic FraCmdOui
     -> NoFicheLab = " Fiche N° 26 "; actif BtNewQSO)");
    EXPECT_EQ(banc.OctetsCahier().substr(25 * kTailleFiche + 98, 3), "Zoe");
}

TEST(Navigation, CarteListeEtFeuilleMontrentLesOctets) {
    Banc banc(
        Octets("F6ABCDEFGHIJ/P|12/05/02|18:30||||||Besançon|JO62QM|2A|Éloïse|ANTENNE YAGI 3 F5XYZ",
               "JN04SD") +
        Octets("KL7ABC|12/05/02|18:30||||||Nome|AP84HM", "RF80AA") + Octets("G3QSO", "JN04SD") +
        Octets("F5XYZ") + Fin());
    banc.Suivre(R"(
 both locators empty : -> LabDist LabAzim = "0 Km      |... "; caché LabUTC
 list : rangee 1 -> ListeLog =
     "1      : F6ABCDEFGH:12/05/02:18:30      |2      : KL7ABC    :12/05/02:18:30      |3      :
     G3QSO     :        :           |4      : F5XYZ     :        :           "
 card : -> NoFicheLab TxtField_1 TxtField_13 TxtField_17 LabDept LabDist LabAzim =
     " Fiche N° 1 |F6ABCDEFGHIJ/P|ANTENNE YAGI 3|F5XYZ|Aisne|1275.5 Km |321°"
 sheet : -> PageText1 contient "Besançon             Éloïse")");
    const std::string lu = S(banc.Controle<QWidget>("BoussoleAzim")->accessibleName());
    EXPECT_EQ(lu,
              "Azimut 321°, compté vers l'ouest : la station est au cap 039°, compté vers l'est");
    const auto peinte = [&banc] { // not drawn for us, as by grab(), but as the screen has it
        QCoreApplication::processEvents();
        const auto* boussole = banc.Controle<QWidget>("BoussoleAzim");
        const QPixmap ecran = banc.fenetre->screen()->grabWindow(banc.fenetre->winId());
        return ecran.copy({boussole->mapTo(banc.fenetre.get(), QPoint()), boussole->size()});
    };
    const QImage avant = peinte().toImage();
    banc.Suivre("across the 180th meridian : ligne 2 ->");
    EXPECT_FALSE(avant.isNull() || avant == peinte().toImage());
    EXPECT_TRUE(banc.Controle<QWidget>("LabAzim")->toolTip().endsWith(
        Q("(l'azimut ne vaut pas au-delà du 180e méridien)")));
    for (const char* pas : {"his is missing : ligne 3 -> LabDist LabAzim = \"          |    \"",
                            "both are : ligne 4 ->"}) {
        banc.Suivre(pas);
        EXPECT_EQ(S(banc.Controle<QWidget>("BoussoleAzim")->accessibleName()), "");
    }
}

} // namespace orvalis::operateur::navigation
