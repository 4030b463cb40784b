// The two kinds of files of the interchange format: ADI, tags with the length of their values, and
// ADX, its XML.
#pragma once

#include "core/fichier.h"
#include "echange/contact_adif.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orvalis {

enum class GenreAdif : unsigned char { Adi, Adx };

// Written: the beginning, the contacts, the end.

/// `creation` is the time in UTC as the format has it, "20261121 183125".
[[nodiscard]] std::string EnteteAdif(GenreAdif genre, std::string_view creation);
/// Adds a contact to `texte`.
void AjouterContact(GenreAdif genre, const ContactAdif& contact, std::string& texte);
[[nodiscard]] std::string_view FinAdif(GenreAdif genre);

// Read.

/// Who is told what a file holds, in its order.
class Receveur {
  public:
    Receveur() = default;
    Receveur(const Receveur&) = delete;
    Receveur& operator=(const Receveur&) = delete;
    virtual ~Receveur() = default;
    /// A field of the header.
    virtual void Entete(std::string_view nom, std::string_view valeur) = 0;
    /// A field that the logbook has no place for.
    virtual void Inconnu(std::string_view nom) = 0;
    /// A contact, with what was odd about its fields as text. False when no more is wanted.
    [[nodiscard]] virtual bool Contact(const ContactAdif& contact) = 0;
    /// Something that belongs to no contact.
    virtual void Incident(std::int64_t ligne, const Remarque& remarque) = 0;
};

/// How the texts of an ADI file are to be taken; settled once for the whole file.
struct LectureAdi {
    bool utf8 = false;       ///< else Windows-1252
    bool caracteres = false; ///< lengths count characters, not bytes
};

/// Which of the two it is, by what stands at its beginning.
[[nodiscard]] GenreAdif ReconnaitreGenre(const Fichier& fichier);

/// Looks through an ADI file: UTF-8 when it has at least as many characters of several bytes
/// as bytes that are none of these; lengths in characters when so more values end where a value
/// should.
[[nodiscard]] LectureAdi ExaminerAdi(const Fichier& fichier);

/// Reads a file of any size and content in time linear in its size, keeping little of it. Lengths
/// that reach beyond the file or into the next tag, values without a length, and a last contact
/// without its end mark are told; what can be read of them is.
void LireAdi(const Fichier& fichier, LectureAdi lecture, Receveur& receveur);

/// The same of XML. What is not well formed ends the reading, and is told; entities of the file's
/// own are refused: throws RefusEchange.
void LireAdx(const Fichier& fichier, Receveur& receveur);

} // namespace orvalis
