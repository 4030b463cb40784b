// ADI by hand: <NAME:LENGTH:TYPE>value, anything between a value and the next tag being a comment.
// What a file promises is never believed before it is looked at.
#include "core/texte.h"
#include "echange/adif_fichiers.h"
#include "echange/fenetre.h"
#include "echange/lettres.h"

#include <algorithm>
#include <array>
#include <vector>

namespace orvalis {
namespace {

constexpr std::size_t kNomMax = 64;
constexpr std::size_t kInconnusMax = 200; // of one contact, kept until it is clear what it is
constexpr std::int64_t kLongueurMax = std::int64_t{1} << 52U;

struct Marque {
    std::string_view nom;
    std::int64_t longueur = -1; ///< none given
    std::size_t taille = 0;     ///< bytes of the whole tag; 0 when it is none
};

bool EstNom(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == ' ' || c == '.';
}

// The tag that `texte` begins with.
Marque LireMarque(std::string_view texte) {
    Marque marque;
    std::size_t i = 1;
    const auto octet = [&] { return i < texte.size() ? texte[i] : '\0'; };
    while (EstNom(octet()) && i <= kNomMax)
        ++i;
    marque.nom = Rogner(texte.substr(1, i - 1));
    if (octet() == ':') {
        const std::size_t chiffres = ++i;
        std::int64_t longueur = 0;
        for (; octet() >= '0' && octet() <= '9'; ++i)
            longueur = std::min(kLongueurMax, 10 * longueur + (octet() - '0'));
        if (i == chiffres || i > 3 * kNomMax)
            return {};
        marque.longueur = longueur;
        if (octet() == ':')
            for (++i; EstNom(octet()) && i < 4 * kNomMax; ++i)
                ;
    }
    if (octet() != '>' || marque.nom.empty())
        return {};
    marque.taille = i + 1;
    return marque;
}

constexpr std::size_t kMarqueMax = 4 * kNomMax + 1;

bool EstMarque(std::string_view nom, std::string_view attendu) {
    return nom.size() == attendu.size() &&
           std::equal(nom.begin(), nom.end(), attendu.begin(), [](char a, char b) {
               return a == b || (a >= 'a' && a <= 'z' && a - 'a' + 'A' == b);
           });
}

bool EstUnVide(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0';
}

std::string_view SansVides(std::string_view texte) {
    while (!texte.empty() && EstUnVide(texte.back()))
        texte.remove_suffix(1);
    while (!texte.empty() && EstUnVide(texte.front()))
        texte.remove_prefix(1);
    return texte;
}

// The first thing in `texte` that looks like a tag with a length, or like one of the two marks.
std::size_t ProchaineMarque(std::string_view texte) {
    for (std::size_t i = texte.find('<'); i != texte.npos; i = texte.find('<', i + 1)) {
        const Marque marque = LireMarque(texte.substr(i));
        if (marque.taille > 0 &&
            (marque.longueur >= 0 || EstMarque(marque.nom, "EOR") || EstMarque(marque.nom, "EOH")))
            return i;
    }
    return texte.npos;
}

class LecteurAdi {
  public:
    LecteurAdi(const Fichier& fichier, LectureAdi lecture, Receveur* receveur)
        : fenetre_(fichier), lecture_(lecture), receveur_(receveur) {}

    void Lire();
    /// Values with other letters than ASCII that ended where a value should.
    [[nodiscard]] std::int64_t FinsNettes() const { return finsNettes_; }

  private:
    void Champ(const Marque& marque);
    [[nodiscard]] std::int64_t AllerALaMarque(std::int64_t reste);
    void Finir(bool marque);
    void FinirEntete();
    void Poser(std::string_view nom, std::string_view valeur, std::int64_t longueur);
    [[nodiscard]] std::int64_t Octets(std::int64_t longueur);
    [[nodiscard]] std::string Texte(std::string_view octets) const;
    void Dire(std::string_view nom, std::string_view avant, std::string_view devenu);

    Fenetre fenetre_;
    LectureAdi lecture_;
    Receveur* receveur_; ///< none when only the ends of values are looked at
    ContactAdif contact_;
    std::vector<std::pair<std::string, std::string>> inconnus_; ///< or fields of the header
    std::int64_t champs_ = 0;                                   ///< fields since the last end mark
    std::int64_t finsNettes_ = 0;
    bool assez_ = false; ///< the receiver wants no more
};

std::string LecteurAdi::Texte(std::string_view octets) const {
    if (EstAscii(octets))
        return std::string{octets};
    if (!lecture_.utf8)
        return DepuisCp1252(octets);
    // A program that counts bytes may have cut the last character in two.
    std::string_view entier = octets;
    for (int i = 0; i < 3 && !entier.empty() && !EstUtf8(entier); ++i)
        entier.remove_suffix(1);
    return EstUtf8(entier) ? std::string{entier} : DepuisCp1252(octets);
}

void LecteurAdi::Dire(std::string_view nom, std::string_view avant, std::string_view devenu) {
    if (champs_++ == 0)
        contact_.ligne = fenetre_.Ligne();
    Signaler(contact_, nom, Texte(avant), devenu);
}

// The bytes that a length stands for at the place where the value begins.
std::int64_t LecteurAdi::Octets(std::int64_t longueur) {
    if (!lecture_.caracteres || longueur > Fenetre::kCaracteresMax)
        return longueur;
    return fenetre_.OctetsDe(longueur);
}

void LecteurAdi::Champ(const Marque& marque) {
    const std::string nom(marque.nom);
    if (champs_++ == 0)
        contact_.ligne = fenetre_.Ligne();
    fenetre_.Avancer(static_cast<std::int64_t>(marque.taille));
    const std::int64_t longueur = Octets(marque.longueur);
    const bool dedans = longueur <= fenetre_.Reste();
    const char suivant = dedans ? fenetre_.OctetA(fenetre_.Position() + longueur) : 'x';
    const std::string_view vu =
        fenetre_.Voir(kValeurMax)
            .substr(0, std::min(static_cast<std::size_t>(longueur), kValeurMax));
    const bool nette = suivant == '<' || EstUnVide(suivant);
    // Of a length that is not to be believed no more is copied than there is up to the next tag.
    std::string valeur(nette ? vu : vu.substr(0, ProchaineMarque(vu)));
    if (nette) {
        finsNettes_ += EstAscii(valeur) ? 0 : 1;
        fenetre_.Avancer(longueur);
        Poser(nom, SansVides(valeur), longueur);
        return;
    }
    const std::int64_t reelle = AllerALaMarque(std::min(longueur, fenetre_.Reste()));
    valeur.resize(std::min(valeur.size(), static_cast<std::size_t>(reelle)));
    const std::string_view texte = SansVides(valeur);
    const std::string annoncee = std::to_string(marque.longueur);
    if (!dedans)
        Dire(nom, annoncee,
             "longueur au-delà de la fin du fichier : lu jusqu'à la marque suivante");
    else if (reelle < longueur)
        Dire(nom, annoncee, "longueur fausse : lu jusqu'à la marque suivante");
    else if (!texte.empty())
        Dire(nom, texte, "le texte continue au-delà de sa longueur : coupé");
    Poser(nom, texte, reelle);
}

// Goes to the next tag, at most `reste` bytes; returns how many they were. What has been searched
// is done with, whatever length the next tag claims.
std::int64_t LecteurAdi::AllerALaMarque(std::int64_t reste) {
    const std::int64_t debut = fenetre_.Position();
    while (reste > 0) {
        const std::string_view vu = fenetre_.Voir(2 * kMarqueMax);
        if (vu.empty())
            break; // the file has become shorter meanwhile
        const auto cherche = static_cast<std::size_t>(
            std::min<std::int64_t>(reste, static_cast<std::int64_t>(vu.size())));
        // A tag that the window cuts is found whole in the next one.
        const bool derniere =
            static_cast<std::int64_t>(vu.size()) >= std::min(reste, fenetre_.Reste());
        const std::size_t sur = derniere ? cherche : std::min(cherche, vu.size() - kMarqueMax);
        const std::size_t marque = ProchaineMarque(vu.substr(0, sur + kMarqueMax));
        fenetre_.Avancer(static_cast<std::int64_t>(std::min(marque, sur)));
        if (marque < sur)
            break;
        reste -= static_cast<std::int64_t>(sur);
    }
    return fenetre_.Position() - debut;
}

void LecteurAdi::Poser(std::string_view nom, std::string_view valeur, std::int64_t longueur) {
    if (receveur_ == nullptr)
        return;
    const std::string texte = Texte(valeur);
    if (PoserChamp(contact_, nom, texte, longueur))
        return;
    if (inconnus_.size() < kInconnusMax)
        inconnus_.emplace_back(nom, texte.substr(0, kNomMax));
    else
        receveur_->Inconnu(nom);
}

void LecteurAdi::Finir(bool marque) {
    for (const auto& [nom, valeur] : inconnus_)
        receveur_->Inconnu(nom);
    if (receveur_ != nullptr && (contact_.connu || (marque && champs_ > 0))) {
        if (!marque)
            Signaler(contact_, "EOR", "", "la marque de fin manque");
        assez_ = !receveur_->Contact(contact_);
    } else if (receveur_ != nullptr) {
        for (const Remarque& remarque : contact_.remarques)
            receveur_->Incident(contact_.ligne, remarque);
        if (marque)
            receveur_->Incident(fenetre_.Ligne(), {"EOR", "", "un contact sans aucun champ"});
    }
    contact_.Vider();
    champs_ = 0;
    inconnus_.clear();
}

void LecteurAdi::FinirEntete() {
    if (!contact_[Balise::CALL].empty()) // the header of a second file behind a contact cut short
        return Finir(false);
    if (receveur_ != nullptr)
        for (const auto& [nom, valeur] : inconnus_)
            receveur_->Entete(nom, valeur);
    contact_.Vider();
    champs_ = 0;
    inconnus_.clear();
}

void LecteurAdi::Lire() {
    while (!assez_ && fenetre_.AvancerJusqua('<')) {
        const Marque marque = LireMarque(fenetre_.Voir(kMarqueMax).substr(0, kMarqueMax));
        if (marque.taille == 0) {
            fenetre_.Avancer(1);
        } else if (marque.longueur >= 0) {
            Champ(marque);
        } else {
            const bool fin = EstMarque(marque.nom, "EOR");
            const bool entete = EstMarque(marque.nom, "EOH");
            if (!fin && !entete && BaliseNommee(marque.nom))
                Dire(marque.nom, "", "sans longueur : laissé vide");
            fenetre_.Avancer(static_cast<std::int64_t>(marque.taille));
            if (fin)
                Finir(true);
            else if (entete)
                FinirEntete();
        }
    }
    if (!assez_)
        Finir(false);
}

} // namespace

GenreAdif ReconnaitreGenre(const Fichier& fichier) {
    std::array<char, 512> debut{};
    std::string_view vu{debut.data(), fichier.Lire(0, debut)};
    if (vu.starts_with("\xFE\xFF") || vu.starts_with("\xFF\xFE"))
        return GenreAdif::Adx; // two bytes a character: only XML may
    if (vu.starts_with("\xEF\xBB\xBF"))
        vu.remove_prefix(3);
    vu = SansVides(vu);
    const bool xml =
        vu.starts_with("<?xml") || vu.starts_with("<!") || EstMarque(vu.substr(0, 4), "<ADX");
    return xml ? GenreAdif::Adx : GenreAdif::Adi;
}

LectureAdi ExaminerAdi(const Fichier& fichier) {
    std::int64_t sequences = 0;
    std::int64_t autres = 0;
    Fenetre fenetre(fichier);
    for (std::string_view vu = fenetre.Voir(4); !vu.empty(); vu = fenetre.Voir(4)) {
        // Three bytes less than there are: a sequence that the window cuts comes whole the next
        // time.
        const std::size_t sur = vu.size() > 4 ? vu.size() - 3 : vu.size();
        std::size_t i = 0;
        while (i < sur) {
            const std::size_t n = LongueurSequence(vu.substr(i));
            sequences += n > 1 ? 1 : 0;
            autres += n == 0 ? 1 : 0;
            i += std::max<std::size_t>(n, 1);
        }
        fenetre.Avancer(static_cast<std::int64_t>(i));
    }
    LectureAdi lecture;
    lecture.utf8 = sequences > 0 && sequences >= autres;
    if (!lecture.utf8)
        return lecture;
    LecteurAdi octets(fichier, {true, false}, nullptr);
    octets.Lire();
    LecteurAdi caracteres(fichier, {true, true}, nullptr);
    caracteres.Lire();
    lecture.caracteres = caracteres.FinsNettes() > octets.FinsNettes();
    return lecture;
}

void LireAdi(const Fichier& fichier, LectureAdi lecture, Receveur& receveur) {
    LecteurAdi(fichier, lecture, &receveur).Lire();
}

} // namespace orvalis
