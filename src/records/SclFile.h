#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/Message.h"
#include "records/PackedRecord.h"

namespace kordavan {

/// The values of the listed products, and those of the user's own.
inline constexpr std::string_view SclFileName = "Kordavan23.LVL";
inline constexpr std::string_view CustomSclFileName = "KordavanCustom.LVL";

/// The values of an SCL product as their boxes show them; empty where none are saved.
struct SclValues {
    std::string Fb;        // psi
    std::string Fv;        // psi
    std::string E;         // millions of psi
    std::string FcPerp;    // psi
    std::string Exponent;  // of the size factor; products of the user's own alone
    std::string Name;      // maker and grade of such a product

    bool operator==(const SclValues&) const = default;
};

/// Refuse a record whose tag is not that of the listed products, or of the user's own.
Outcome CheckSclTag(const PackedRecord& record, UserPort& user);
Outcome CheckCustomSclTag(const PackedRecord& record, UserPort& user);

/// The values saved of a product, by its place in the list. Files that do not exist yet hold none; one that
/// cannot be read, or of another kind, is told and gives none.
/// @param folder  of the files of fixed name
SclValues LoadSclValues(const std::string& folder, std::size_t product, UserPort& user);

/// Checks the values and puts them in the place of the product; those of the others stay. A fault is told,
/// and leaves the old file whole.
Outcome SaveSclValues(const std::string& folder, std::size_t product, const SclValues& values,
                      UserPort& user);

}  // namespace kordavan
