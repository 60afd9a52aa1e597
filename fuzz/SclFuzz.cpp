#include "FuzzKit.h"
#include "core/NumberText.h"
#include "materials/SclProducts.h"
#include "records/SclFile.h"

namespace kordavan {
namespace {

void TryProduct(const std::string& folder, std::size_t product)
{
    SteadyUser user;
    const SclValues values = LoadSclValues(folder, product, user);
    for (const auto text :
         {&SclValues::Fb, &SclValues::Fv, &SclValues::E, &SclValues::FcPerp, &SclValues::Exponent}) {
        MustHold((values.*text).empty() || IsNumeric(values.*text), "a value is a number or none");
    }
    if (SaveSclValues(folder, product, values, user) != Outcome::Done) {
        MustHold(user.MessageCount > 0, "a refusal says why");
        return;
    }
    MustHold(LoadSclValues(folder, product, user) == values, "saved values read as they were");
}

}  // namespace
}  // namespace kordavan

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kordavan;
    static const ScratchFolder folder;
    const std::string bytes = InputBytes(data, size);
    folder.Put(SclFileName, bytes);
    folder.Put(CustomSclFileName, bytes);
    for (const std::size_t product : {std::size_t{0}, FirstCustomScl, SclProductCount - 1}) {
        TryProduct(folder.Path(), product);
    }
    return 0;
}
