#include "core/chemins.h"
#include "core/texte.h"
#include "echange/adif_fichiers.h"
#include "echange/refus.h"
#include "echange/tables_adif.h"

#include <algorithm>
#include <array>
#include <exception>
#include <expat.h>
#include <functional>
#include <memory>
#include <new>
#include <unordered_set>

namespace orvalis {
namespace {

constexpr std::size_t kBloc = 64UL * 1024;
// Expat keeps a tag until it is complete, every open element and every name there is: none of it is
// left to the file.
constexpr std::int64_t kMarqueMax = 1024L * 1024;
constexpr int kProfondeurMax = 32;
constexpr std::size_t kNomsMax = 20'000;
constexpr std::size_t kOctetsNomsMax = 2'000'000; // of all of them

struct Faute {
    XML_Error code;
    std::string_view phrase;
};
constexpr std::array<Faute, 7> kFautes = {{
    {XML_ERROR_NO_ELEMENTS, "le fichier finit avant son premier élément"},
    {XML_ERROR_UNCLOSED_TOKEN, "une marque n'est pas fermée"},
    {XML_ERROR_PARTIAL_CHAR, "le fichier finit au milieu d'un caractère"},
    {XML_ERROR_TAG_MISMATCH, "une marque de fin n'est pas celle de l'élément ouvert"},
    {XML_ERROR_UNDEFINED_ENTITY, "une entité n'est pas définie"},
    {XML_ERROR_UNKNOWN_ENCODING, "le codage annoncé est inconnu"},
    {XML_ERROR_NO_MEMORY, "la mémoire est épuisée"},
}};

std::string_view DireFauteXml(XML_Error code) {
    const auto* const faute = std::find_if(kFautes.begin(), kFautes.end(),
                                           [code](const Faute& f) { return f.code == code; });
    return faute == kFautes.end() ? "ce n'est pas du XML bien formé" : faute->phrase;
}

struct DetruireXml {
    void operator()(XML_Parser xml) const { XML_ParserFree(xml); }
};
using Xml = std::unique_ptr<XML_ParserStruct, DetruireXml>;

class LecteurAdx {
  public:
    LecteurAdx(const Fichier& fichier, Receveur& receveur);
    void Lire();

  private:
    static void XMLCALL Ouvrir(void* moi, const XML_Char* nom, const XML_Char** attributs) {
        Garder(moi, [&](LecteurAdx& lecteur) { lecteur.OuvrirElement(nom, attributs); });
    }
    static void XMLCALL Fermer(void* moi, const XML_Char* nom) {
        Garder(moi, [&](LecteurAdx& lecteur) { lecteur.FermerElement(nom); });
    }
    static void XMLCALL Texte(void* moi, const XML_Char* texte, int n) {
        Garder(moi, [&](LecteurAdx& lecteur) {
            const auto octets = static_cast<std::size_t>(n);
            lecteur.longueur_ += static_cast<std::int64_t>(octets);
            if (lecteur.valeur_.size() < kValeurMax)
                lecteur.valeur_.append(texte, std::min(octets, kValeurMax));
        });
    }
    // Expat is C: an exception waits until it has returned.
    template<class Faire> static void Garder(void* moi, Faire faire) {
        auto& lecteur = *static_cast<LecteurAdx*>(moi);
        try {
            if (!lecteur.exception_)
                faire(lecteur);
        } catch (...) {
            lecteur.exception_ = std::current_exception();
            XML_StopParser(lecteur.xml_.get(), XML_FALSE);
        }
    }
    static void XMLCALL Doctype(void* moi, const XML_Char*, const XML_Char*, const XML_Char*, int) {
        auto& lecteur = *static_cast<LecteurAdx*>(moi);
        lecteur.doctype_ = true;
        XML_StopParser(lecteur.xml_.get(), XML_FALSE);
    }
    static int XMLCALL Codage(void*, const XML_Char* nom, XML_Encoding* codage);

    void Retenir(std::string_view nom);
    void OuvrirElement(std::string_view nom, const XML_Char** attributs);
    void FermerElement(std::string_view nom);
    void FinirContact(std::string_view pourquoi);
    void Arreter(std::string_view pourquoi);

    const Fichier& fichier_;
    Receveur& receveur_;
    Xml xml_;
    ContactAdif contact_;
    std::string nom_; ///< of the field that is open
    std::string valeur_;
    std::int64_t longueur_ = 0; ///< of the whole value, of which no more than its beginning is kept
    int profondeur_ = 0;
    bool dansContact_ = false;
    bool dansEntete_ = false;
    bool doctype_ = false;
    bool trop_ = false; ///< more elements in each other, or more names, than any contact has
    std::unordered_set<std::size_t> noms_;
    std::size_t octetsNoms_ = 0; ///< what expat keeps of them
    bool assez_ = false;         ///< the receiver wants no more
    std::exception_ptr exception_;
};

LecteurAdx::LecteurAdx(const Fichier& fichier, Receveur& receveur)
    : fichier_(fichier), receveur_(receveur), xml_(XML_ParserCreate(nullptr)) {
    if (!xml_)
        throw std::bad_alloc();
    XML_SetUserData(xml_.get(), this);
    XML_SetElementHandler(xml_.get(), Ouvrir, Fermer);
    XML_SetCharacterDataHandler(xml_.get(), Texte);
    XML_SetStartDoctypeDeclHandler(xml_.get(), Doctype);
    XML_SetUnknownEncodingHandler(xml_.get(), Codage, nullptr);
}

// Expat knows UTF-8, UTF-16 and Latin 1; some programs declare Windows-1252.
int LecteurAdx::Codage(void* /*moi*/, const XML_Char* nom, XML_Encoding* codage) {
    const std::string majuscules = MajusculesAscii(nom);
    if (majuscules != "WINDOWS-1252" && majuscules != "CP1252")
        return XML_STATUS_ERROR;
    for (int i = 0; i < 256; ++i) {
        const char octet = static_cast<char>(i);
        const std::string utf8 = DepuisCp1252({&octet, 1});
        const auto suite = [&utf8](std::size_t k) {
            return static_cast<int>(static_cast<unsigned char>(utf8[k]) & 0x3FU);
        };
        const auto tete = static_cast<unsigned char>(utf8.front());
        codage->map[i] = utf8.size() == 1   ? tete
                         : utf8.size() == 2 ? (tete & 0x1F) << 6 | suite(1)
                                            : (tete & 0x0F) << 12 | suite(1) << 6 | suite(2);
    }
    codage->data = nullptr;
    codage->convert = nullptr;
    codage->release = nullptr;
    return XML_STATUS_OK;
}

void LecteurAdx::Retenir(std::string_view nom) {
    if (noms_.insert(std::hash<std::string_view>{}(nom)).second)
        octetsNoms_ += nom.size();
}

void LecteurAdx::OuvrirElement(std::string_view nom, const XML_Char** attributs) {
    Retenir(nom);
    for (const XML_Char** attribut = attributs; *attribut != nullptr; attribut += 2)
        Retenir(*attribut);
    if (++profondeur_ > kProfondeurMax || noms_.size() > kNomsMax || octetsNoms_ > kOctetsNomsMax) {
        trop_ = true;
        XML_StopParser(xml_.get(), XML_FALSE);
    }
    const std::string majuscules = MajusculesAscii(nom);
    if (majuscules == "RECORD") {
        FinirContact("");
        dansContact_ = true;
        contact_.ligne = static_cast<std::int64_t>(XML_GetCurrentLineNumber(xml_.get()));
    } else if (majuscules == "HEADER") {
        dansEntete_ = true;
    }
    valeur_.clear();
    longueur_ = 0;
    nom_ = nom;
    if (majuscules != "APP")
        return;
    std::array<std::string, 2> cles; // program, field
    for (; attributs[0] != nullptr; attributs += 2) {
        const std::string attribut = MajusculesAscii(attributs[0]);
        if (attribut == "PROGRAMID" || attribut == "FIELDNAME")
            cles[attribut == "PROGRAMID" ? 0 : 1] = attributs[1];
    }
    nom_ = "APP_" + cles[0] + "_" + cles[1];
}

void LecteurAdx::FermerElement(std::string_view nom) {
    --profondeur_;
    const std::string majuscules = MajusculesAscii(nom);
    if (majuscules == "RECORD")
        FinirContact("");
    else if (majuscules == "HEADER")
        dansEntete_ = false;
    else if (!nom_.empty() && dansContact_ &&
             !PoserChamp(contact_, nom_, Rogner(valeur_), longueur_))
        receveur_.Inconnu(nom_);
    else if (!nom_.empty() && dansEntete_)
        receveur_.Entete(nom_, Rogner(valeur_));
    nom_.clear(); // what follows belongs to no field
    valeur_.clear();
}

void LecteurAdx::FinirContact(std::string_view pourquoi) {
    if (!dansContact_)
        return;
    dansContact_ = false;
    if (!pourquoi.empty())
        Signaler(contact_, "RECORD", "", pourquoi);
    if (contact_.connu && !receveur_.Contact(contact_)) {
        assez_ = true;
        XML_StopParser(xml_.get(), XML_FALSE);
    }
    if (!contact_.connu)
        receveur_.Incident(contact_.ligne, {"RECORD", "", "un contact sans aucun champ connu"});
    contact_.Vider();
}

void LecteurAdx::Arreter(std::string_view pourquoi) {
    const auto ligne = static_cast<std::int64_t>(XML_GetCurrentLineNumber(xml_.get()));
    FinirContact("la lecture s'arrête dans ce contact");
    receveur_.Incident(ligne, {"", std::string{pourquoi}, "la lecture s'arrête ici"});
}

void LecteurAdx::Lire() {
    std::int64_t position = 0;
    for (bool fini = false; !fini;) {
        void* bloc = XML_GetBuffer(xml_.get(), static_cast<int>(kBloc));
        if (bloc == nullptr)
            return Arreter("une marque trop longue");
        const std::size_t n = fichier_.Lire(position, {static_cast<char*>(bloc), kBloc});
        position += static_cast<std::int64_t>(n);
        fini = n < kBloc;
        const XML_Status statut = XML_ParseBuffer(xml_.get(), static_cast<int>(n), fini ? 1 : 0);
        if (exception_)
            std::rethrow_exception(exception_);
        if (assez_)
            return;
        if (doctype_)
            throw RefusEchange("Le fichier « " + TexteChemin(fichier_.Chemin()) +
                               " » définit ses propres entités : il n'est pas lu.");
        if (trop_)
            return Arreter("des éléments trop imbriqués ou trop de noms");
        if (statut == XML_STATUS_ERROR)
            return Arreter(DireFauteXml(XML_GetErrorCode(xml_.get())));
        if (position - static_cast<std::int64_t>(XML_GetCurrentByteIndex(xml_.get())) > kMarqueMax)
            return Arreter("une marque trop longue");
    }
    FinirContact("");
}

} // namespace

void LireAdx(const Fichier& fichier, Receveur& receveur) {
    LecteurAdx(fichier, receveur).Lire();
}

} // namespace orvalis
