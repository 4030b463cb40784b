// A French sentence under way. What is quoted in it, a text that the operator types or types over,
// is left out of the key: two sentences of the same key say the same of different texts.
#pragma once

#include <string>
#include <string_view>

namespace orvalis {

/// The no-break space that French puts before high punctuation and inside quotation marks.
inline constexpr std::string_view kInsecable = "\u00A0";

/// " ; " and " : " as French sets them.
inline constexpr std::string_view kPointVirgule = "\u00A0; ";
inline constexpr std::string_view kDeuxPoints = "\u00A0: ";

struct Phrase {
    std::string texte;
    std::string cle;

    Phrase& Dire(std::string_view mots) {
        texte += mots;
        cle += mots;
        return *this;
    }
    Phrase& Citer(std::string_view cite) {
        texte.append("«").append(kInsecable).append(cite).append(kInsecable).append("»");
        cle += "«»";
        return *this;
    }
};

} // namespace orvalis
