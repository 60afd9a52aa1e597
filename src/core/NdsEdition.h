#pragma once

#include <string_view>

namespace kordavan {

/// Editions of the National Design Specification for Wood Construction; None when no edition is known.
enum class Edition { None, Nds1997, Nds2001, Nds2005, Nds2012, Nds2015, Nds2018 };

/// The edition flags as screens and files keep them. At most one is meant to be on.
struct NdsEdition {
    bool Nds1997 = false;
    bool Nds2001 = false;
    bool Nds2005 = false;
    bool Nds2012 = false;
    bool Nds2015 = false;
    bool Nds2018 = false;
};

NdsEdition EditionFlags(Edition edition);

/// The edition that counts where flags were left on together: 1997, 2012, 2015, 2018, 2005, 2001, the first
/// that is on.
Edition EditionInForce(const NdsEdition& flags);

/// "1997" to "2018"; empty for None.
std::string_view EditionYear(Edition edition);

/// The edition of a year text, None for any other text.
Edition EditionOfYear(std::string_view year);

constexpr bool IsPre2005(Edition edition)
{
    return edition == Edition::Nds1997 || edition == Edition::Nds2001;
}

constexpr bool IsPost2012(Edition edition)
{
    return edition == Edition::Nds2012 || edition == Edition::Nds2015 || edition == Edition::Nds2018;
}

}  // namespace kordavan
