// The numbers of a logbook as they are drawn.
#include "aides.h"
#include "compagnons/db_orvalis/bilan_html.h"
#include "compagnons/db_orvalis/imprimante_svg.h"
#include "core/texte.h"
#include "print/enregistreur.h"

namespace orvalis::aides {
namespace {

using namespace testing;

// A logbook in which everything is as large as it gets.
FeuilleBilan Enorme() {
    constexpr std::size_t kTous = 32767;
    BilanCahier b = FaireBilan({});
    b.contacts = b.stations = b.aRepondre = kTous;
    b.premier = b.dernier = Jour{std::chrono::year{2026} / 9 / 30};
    for (int annee = kPremiereAnnee; annee <= kDerniereAnnee; annee += 3)
        b.annees.push_back({annee, kTous});
    b.mois.fill(kTous);
    for (const Bande& bande : Bandes()) {
        b.bandes.push_back({bande.nom, kTous});
        b.modes.push_back({"DIGITALVOICE", kTous});
    }
    b.sansBande = b.sansMode = kTous;
    for (std::size_t i = 0; i < b.departements.size(); ++i) {
        b.departements[i].etat = static_cast<EtatDepartement>(i % 3);
        b.departements[i].contacts = i % 3 == 0 ? 0 : kTous;
    }
    for (char c = 'A'; c <= 'R'; ++c)
        b.carres.push_back({std::string{c} + "M00", kTous, true});
    b.lointains.assign(kNbLointains, {1, "WWWWWWWWWWWWWWW", "MM00", b.premier, "19999.9 Km", 2e4});
    b.maCarte.fill(kTous);
    b.saCarte.fill(kTous);
    b.datesIllisibles.assign(5000, 30000);
    return {b, "WWWWWWWWWWWWWWW", "WWWWWWWWWWWWWWW.Vek", *b.premier};
}

// Where the texts stand, as wide as they are in print.
struct Mesureur : ImprimanteSvg {
    struct Texte {
        int page;
        Cadre cadre;
        std::string texte;
    };
    std::vector<Texte> textes;
    int page = 1, x = 0, y = 0, taille = 0;
    void ChoisirTaille(int points) override { ImprimanteSvg::ChoisirTaille(taille = points); }
    void Placer(int la, int haut) override { x = la, y = haut; }
    void Ecrire(std::string_view texte, orvalis::Suite /*suite*/) override {
        textes.push_back({page, {x, y, LargeurTexte(texte), taille * 20}, std::string(texte)});
    }
    void TournerPage() override { ++page; }
};

TEST(BilanDessin, AucunTexteSurUnAutreNiHorsDeLaFeuille) {
    constexpr int kLargeur = 11506; // of A4 within margins of ten points
    constexpr int kHauteur = 16438;
    Mesureur feuille;
    ImprimerBilan(feuille, Enorme());
    EXPECT_EQ(feuille.page, 2);
    EXPECT_GT(feuille.textes.size(), 300U);
    for (const auto& [page, a, texte] : feuille.textes) {
        EXPECT_TRUE(a.x >= 0 && a.y >= 0 && a.Droite() <= kLargeur && a.Bas() <= kHauteur) << texte;
        for (const auto& [autrePage, b, autre] : feuille.textes)
            EXPECT_FALSE(&a != &b && page == autrePage && a.x < b.Droite() && b.x < a.Droite() &&
                         a.y < b.Bas() && b.y < a.Bas())
                << texte << " on " << autre;
    }
}

// On the tile: how dark it is, and the ink of its code.
TEST(BilanDessin, UneTuilePourChaqueDepartement) {
    const FeuilleBilan feuille = Enorme();
    Enregistreur imprimante;
    DessinerDepartements(imprimante, {0, 0, 10900, 7300}, feuille.bilan);
    const auto encre = [](Encre e) { return "E " + std::to_string(static_cast<int>(e)); };
    for (const BilanDepartement& d : feuille.bilan.departements) {
        const std::string code = (d.contacts > 0 ? " 10g " : " 10 ") + std::string(d.code);
        const auto porte = [&](const std::string& o) { return o.ends_with(code); };
        ASSERT_EQ(std::count_if(imprimante.operations.begin(), imprimante.operations.end(), porte),
                  1)
            << d.code;
        const auto la =
            std::find_if(imprimante.operations.begin(), imprimante.operations.end(), porte);
        const auto [fond, texte] = std::map<EtatDepartement, std::pair<Encre, Encre>>{
            {EtatDepartement::Jamais, {Encre::Blanc, Encre::Gris}},
            {EtatDepartement::Contacte, {Encre::Pale, Encre::Noir}},
            {EtatDepartement::Confirme,
             {Encre::Forte,
              Encre::Blanc}}}.at(d.etat);
        EXPECT_EQ(*(la - 3), encre(fond)) << d.code;
        EXPECT_EQ(*(la - 1), encre(texte)) << d.code;
    }
}

// What does not fit is one bar more; no contact is lost on the way.
TEST(BilanDessin, LesPlusPetitesBarresEnsemble) {
    FeuilleBilan feuille = Enorme();
    feuille.bilan.modes.clear();
    for (std::size_t i = 1; i <= 20; ++i)
        feuille.bilan.modes.push_back({"MODE", i});
    feuille.bilan.sansMode = 0;
    Enregistreur imprimante("Arial");
    for (const PartieBilan& partie : PartiesBilan())
        if (partie.titre == "Contacts par mode")
            DessinerPartie(imprimante, partie, feuille.bilan);
    std::string textes;
    for (const std::string& o : imprimante.operations)
        if (o.starts_with("T "))
            textes += o.substr(o.find_last_of(' '));
    EXPECT_EQ(textes, " MODE 6 MODE 7 MODE 8 MODE 9 MODE 10 MODE 11 MODE 12 MODE 13 MODE 14 MODE 15"
                      " MODE 16 MODE 17 MODE 18 MODE 19 MODE 20 autres 15");
    Enregistreur barres("Arial");
    DessinerBarres(barres, {0, 0, 5000, 900},
                   std::array{Valeur{"", 32767}, Valeur{"", 1}, Valeur{"", 0}});
    EXPECT_EQ(barres.Compter("B "), 3) << "one is seen, nothing is not; the edge is the third";
}

TEST(BilanDessin, PageDuWeb) {
    FeuilleBilan feuille{FaireBilan({}), "<F5&ABC>", "\"\x01.Vek", Enorme().faitLe};
    const std::string page = PageBilan(feuille);
    EXPECT_THAT(page, AllOf(HasSubstr("<h1>Bilan du cahier de &lt;F5&amp;ABC&gt;</h1>"),
                            HasSubstr("<p>&quot;.Vek – fait le 30 septembre 2026</p>"),
                            HasSubstr("<summary>99 départements à contacter</summary>"),
                            HasSubstr("<li>20 Corse</li>"), Not(HasSubstr("nan"))));
    EXPECT_EQ(EcrireNombre(999) + "/" + EcrireNombre(1234567), "999/1\u00A0234\u00A0567");
}

} // namespace
} // namespace orvalis::aides
