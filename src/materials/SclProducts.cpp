#include "materials/SclProducts.h"

#include <algorithm>

#include "core/SizeText.h"

namespace kordavan {

namespace {

using DepthTexts = std::span<const std::string_view>;

// Depths as the makers' guides list them; where a guide tells only a range, the usual steps within it.
constexpr std::array<std::string_view, 11> LvlTo24{"5-1/2", "7-1/4", "9-1/4", "9-1/2", "11-1/4", "11-7/8",
                                                   "14",    "16",    "18",    "20",    "24"};
constexpr std::array<std::string_view, 10> LvlTo20{"5-1/2",  "7-1/4", "9-1/4", "9-1/2", "11-1/4",
                                                   "11-7/8", "14",    "16",    "18",    "20"};
constexpr std::array<std::string_view, 7> PslDepths{"9-1/4", "9-1/2", "11-1/4", "11-7/8", "14", "16", "18"};
constexpr std::array<std::string_view, 12> LvlBy2To24{"5-1/2", "7-1/4", "9-1/4", "9-1/2", "11-1/4", "11-7/8",
                                                      "14",    "16",    "18",    "20",    "22",     "24"};
constexpr std::array<std::string_view, 6> RimTo11{"4-3/8", "5-1/2", "7-1/4", "8-5/8", "9-1/4", "11-1/4"};
constexpr std::array<std::string_view, 6> LslTo16{"9-1/4", "9-1/2", "11-1/4", "11-7/8", "14", "16"};
constexpr std::array<std::string_view, 8> JoistDepths{"9-1/2", "11-7/8", "14", "16", "18", "20", "22", "24"};
constexpr std::array<std::string_view, 25> HybridDepths{
    "6",  "7-1/2",  "9",      "9-1/2",  "10-1/2", "11-7/8", "12",     "13-1/2", "14",
    "15", "16",     "16-1/2", "18",     "19-1/2", "21",     "22-1/2", "24",     "25-1/2",
    "27", "28-1/2", "30",     "31-1/2", "33",     "34-1/2", "36"};
constexpr std::array<std::string_view, 33> EveryDepth{
    "4-3/8",  "5-1/2",  "6",      "7-1/4", "7-1/2",  "8-5/8",  "9",  "9-1/4",  "9-1/2",
    "10-1/2", "11-1/4", "11-7/8", "12",    "13-1/2", "14",     "15", "16",     "16-1/2",
    "18",     "19-1/2", "20",     "21",    "22",     "22-1/2", "24", "25-1/2", "27",
    "28-1/2", "30",     "31-1/2", "33",    "34-1/2", "36"};

/// A stretch of a list of depths.
constexpr DepthTexts Between(DepthTexts depths, std::string_view first, std::string_view last)
{
    const auto at = [&depths](std::string_view text) {
        return static_cast<std::size_t>(std::find(depths.begin(), depths.end(), text) - depths.begin());
    };
    return depths.subspan(at(first), at(last) - at(first) + 1);
}

constexpr DepthTexts LvlFrom7To18 = Between(LvlTo24, "7-1/4", "18");
constexpr DepthTexts LvlFrom7To24 = Between(LvlBy2To24, "7-1/4", "24");

/// The breadths of a product that has the same depths in all of them.
template <std::size_t Count>
constexpr std::array<SclSize, Count> AllOf(const std::string_view (&breadths)[Count], DepthTexts depths)
{
    std::array<SclSize, Count> sizes{};
    for (std::size_t k = 0; k < Count; ++k) {
        sizes[k] = {breadths[k], depths};
    }
    return sizes;
}

constexpr auto VersaLam2800 = AllOf({"1-3/4x", "2-5/8x", "(2) 1-3/4x", "(3) 1-3/4x", "(4) 1-3/4x"}, LvlTo24);
constexpr auto VersaLam3100 = AllOf({"3-1/2x", "5-1/4x", "7x"}, LvlTo24);
constexpr auto Microllam = AllOf({"1-3/4x", "(2) 1-3/4x", "(3) 1-3/4x", "(4) 1-3/4x"}, LvlTo20);
constexpr auto Parallam = AllOf({"2-11/16x", "3-1/2x", "5-1/4x", "7x"}, PslDepths);
constexpr auto Pacific = AllOf({"1-3/4x", "3-1/2x"}, LvlBy2To24);
constexpr auto OnCenter = AllOf({"1-3/4x", "(2) 1-3/4x"}, LvlFrom7To24);
constexpr auto SolidStart = AllOf({"1-3/4x", "(2) 1-3/4x", "(3) 1-3/4x", "(4) 1-3/4x"}, LvlFrom7To18);
constexpr auto RimStrand = AllOf({"3-1/2x"}, RimTo11);
constexpr auto TimberStrand = AllOf({"3-1/2x", "1-3/4x", "5-1/4x"}, LslTo16);
constexpr auto NordicLam20F = AllOf({"1-3/4x", "2-1/2x", "3-1/2x", "5-1/2x"}, JoistDepths);
constexpr auto NordicLam24F = AllOf({"1-3/4x", "2-1/2x", "3-1/2x", "5-1/2x", "7x"}, JoistDepths);
constexpr auto NordicLam30F = AllOf({"3-1/2x", "5-1/2x", "7x"}, JoistDepths);
constexpr auto WestFraser = AllOf({"1-3/4x", "(2) 1-3/4x", "(3) 1-3/4x", "(4) 1-3/4x"}, LvlFrom7To24);
constexpr auto WestFraserSingle = AllOf({"3-1/2x", "1-3/4x"}, LvlFrom7To24);
constexpr auto WestFraserRim = AllOf({"1-1/4x", "(2) 1-1/4x", "(3) 1-1/4x", "(4) 1-1/4x"}, JoistDepths);
constexpr auto RigidLam = AllOf({"1-3/4x", "(2) 1-3/4x", "(3) 1-3/4x", "(4) 1-3/4x"}, LvlTo24);
constexpr std::array BigBeam{
    SclSize{"3-1/2x", Between(HybridDepths, "9", "24")},
    SclSize{"5-1/2x", Between(HybridDepths, "9", "30")},
    SclSize{"7x", Between(HybridDepths, "9", "30")},
};
constexpr std::array XBeam{
    SclSize{"3-1/2x", Between(HybridDepths, "6", "24")},
    SclSize{"5-1/2x", Between(HybridDepths, "6", "30")},
    SclSize{"6-3/4x", Between(HybridDepths, "7-1/2", "36")},
    SclSize{"8-3/4x", Between(HybridDepths, "9", "36")},
};

/// How the bending value of a product follows its size.
struct SizeRule {
    double DeepExponent;
    double ShallowExponent;
    bool UsesVolumeFactor;
    bool IsRepetitive;
};

constexpr SizeRule Exponent(double everywhere)
{
    return {everywhere, everywhere, false, true};
}

constexpr SizeRule From12In(double deep, double shallow)
{
    return {deep, shallow, false, true};
}

constexpr SizeRule Volume{0, 0, true, false};
constexpr SizeRule RepetitiveVolume{0, 0, true, true};

constexpr double Ninth = 1.0 / 9;
constexpr double ByHand = 0.111111;  // a ninth to the digits that its maker prints

// Unit weights over 144, each to the digits that are usual for it.
constexpr float Of35Pcf = 0.2430555F;
constexpr float Of36Pcf = 0.25F;
constexpr float Of37Pcf = 0.25694F;
constexpr float Of37HalfPcf = 0.2604F;
constexpr float Of38Pcf = 0.2638884F;
constexpr float Of45Pcf = 0.3125F;

constexpr SclProduct Product(std::string_view name, std::string_view line, std::span<const SclSize> sizes,
                             SizeRule rule, float densityFactor)
{
    return {.Name = name,
            .LVLname = line,
            .boisenote = {},
            .Sizes = sizes,
            .DeepExponent = rule.DeepExponent,
            .ShallowExponent = rule.ShallowExponent,
            .UsesVolumeFactor = rule.UsesVolumeFactor,
            .IsRepetitive = rule.IsRepetitive,
            .DensityFactor = densityFactor};
}

constexpr SclProduct WithNote(SclProduct product, std::string_view note)
{
    product.boisenote = note;
    return product;
}

constexpr SclProduct WithShallowLimit(SclProduct product, double inches)
{
    product.ShallowLimit = inches;
    return product;
}

constexpr std::string_view Vestige =
    "This selection is a vestige of the discontinued BC Versa-Lam Plus. Please select BC Versa-Lam for all "
    "available widths.";

constexpr std::string_view NotForGlulams = "For SCL's Only, not for Glu-lam products.";

// Size factors and unit weights: the makers' evaluation reports.
constexpr std::array<SclProduct, SclProductCount> Products{
    Product("2.0E BC Versa-Lam 2800", "Boise LVL 2800", VersaLam2800, Exponent(Ninth), Of37Pcf),
    WithNote(Product("2.0E BC Versa-Lam 3100", "Boise LVL 3100", VersaLam3100, Exponent(Ninth), Of37Pcf),
             Vestige),
    Product("1.9E TJ Microllam LVL", "Trus Joist LVL", Microllam, Exponent(0.136), Of37Pcf),
    Product("2.0E TJ Parallam W.S. PSL", "Trus Joist PSL", Parallam, Exponent(Ninth), Of45Pcf),
    Product("2.0E TJ Parallam E.S. PSL", "Trus Joist PSL", Parallam, Exponent(Ninth), Of45Pcf),
    Product("2.1E PW LVL", "Pacific Woodtech LVL", Pacific, Exponent(1.0 / 5), Of38Pcf),
    Product("2.1E BL onCenter LVL", "Blue Linx LVL", OnCenter, From12In(0.2, 0.125), Of38Pcf),
    Product("1.9E LP SolidStart LVL", "Lousiana Pacific LVL", SolidStart, From12In(1.0 / 7, Ninth), Of36Pcf),
    Product("2.0E LP SolidStart LVL", "Lousiana Pacific LVL", SolidStart, From12In(1.0 / 7, Ninth), Of36Pcf),
    Product("1.5E LP SolidStart LVL", "Lousiana Pacific LVL", SolidStart, From12In(1.0 / 7, Ninth), Of36Pcf),
    WithShallowLimit(
        Product("1.3E TJ TimberStrand LSL", "Trus Joist LSL", RimStrand, Exponent(0.092), Of38Pcf), 5.0 / 16),
    Product("Disc. 1.5E TJ TimberStrand LSL", "Trus Joist LSL", TimberStrand, Exponent(0.092), Of38Pcf),
    Product("1.55E TJ TimberStrand LSL", "Trus Joist LSL", TimberStrand, Exponent(0.092), Of38Pcf),
    Product("20F-1.6E CC NordicLam LSL", "Chantiers Chibougamau LSL", NordicLam20F, Volume, Of35Pcf),
    Product("24F-1.9E CC NordicLam LSL", "Chantiers Chibougamau LSL", NordicLam24F, Volume, Of35Pcf),
    Product("30F-2.2E CC NordicLam LSL", "Chantiers Chibougamau LSL", NordicLam30F, Volume, Of37Pcf),
    Product("2.0E WF West Fraser LVL", "West Fraser LVL", WestFraser, Exponent(0.136), Of37Pcf),
    Product("1.8E WF West Fraser LVL", "West Fraser LVL", WestFraser, Exponent(0.136), Of37Pcf),
    Product("1.7E WF West Fraser LVL", "West Fraser LVL", WestFraserSingle, Exponent(ByHand), Of37Pcf),
    Product("1.3E WF West Fraser LVL", "West Fraser LVL", WestFraserRim, Exponent(ByHand), Of37Pcf),
    Product("1.5E RFP RigidLam LVL", "Roseburg Forest Products LVL", RigidLam, Exponent(0.125), Of37Pcf),
    Product("2.0E RFP RigidLam LVL", "Roseburg Forest Products LVL", RigidLam, Exponent(0.125), Of37Pcf),
    Product("2.1E RB Rosboro BigBeam LSL", "Rosboro BigBeam Hybrid LSL", BigBeam, Volume, Of37Pcf),
    Product("Custom SCL #1", NotForGlulams, {}, Exponent(0), Of37HalfPcf),
    Product("Custom SCL #2", NotForGlulams, {}, Exponent(0), Of37HalfPcf),
    Product("1.8E RB Rosboro X-Beam GLB", "Rosboro X-Beam Glu-Lam", XBeam, RepetitiveVolume, Of35Pcf),
};

constexpr Breadth Composite(std::string_view text, double net)
{
    return {text, net, BreadthKey::Composite};
}

constexpr std::array Breadths{
    Composite("1-1/4x", 1.25),     Composite("(2) 1-1/4x", 2.5),
    Composite("(3) 1-1/4x", 3.75), Composite("(4) 1-1/4x", 5),
    Composite("1-1/2x", 1.5),      Composite("(2) 1-1/2x", 3),
    Composite("(3) 1-1/2x", 4.5),  Composite("(4) 1-1/2x", 6),
    Composite("1-3/4x", 1.75),     Composite("(2) 1-3/4x", 3.5),
    Composite("(3) 1-3/4x", 5.25), Composite("(4) 1-3/4x", 7),
    Composite("2-1/2x", 2.5),      Composite("2-5/8x", 2.625),
    Composite("2-11/16x", 2.6875), Composite("3-1/2x", 3.5),
    Composite("5-1/4x", 5.25),     Composite("5-1/2x", 5.5),
    Composite("6-3/4x", 6.75),     Composite("7x", 7),
    Composite("8-3/4x", 8.75),
};

/// The texts of all depths of a product, each once, from small to large.
std::vector<std::string_view> EveryDepthOf(std::size_t product)
{
    if (IsCustomScl(product)) {
        return {EveryDepth.begin(), EveryDepth.end()};
    }
    std::vector<std::string_view> texts;
    for (const SclSize& size : Products[product].Sizes) {
        texts.insert(texts.end(), size.Depths.begin(), size.Depths.end());
    }
    const auto isShallower = [](std::string_view a, std::string_view b) { return InchesOf(a) < InchesOf(b); };
    std::sort(texts.begin(), texts.end(), isShallower);
    texts.erase(std::unique(texts.begin(), texts.end()), texts.end());
    return texts;
}

std::vector<std::string_view> DepthTextsOf(std::size_t product, std::string_view breadth)
{
    const std::span<const SclSize> sizes = Products[product].Sizes;
    const auto found = std::find_if(sizes.begin(), sizes.end(),
                                    [breadth](const SclSize& size) { return size.Breadth == breadth; });
    return found == sizes.end() ? EveryDepthOf(product)
                                : std::vector<std::string_view>(found->Depths.begin(), found->Depths.end());
}

}  // namespace

std::span<const SclProduct, SclProductCount> SclProducts()
{
    return Products;
}

std::span<const Breadth> SclBreadths()
{
    return Breadths;
}

bool IsMadeIn(std::size_t product, std::string_view breadth)
{
    const std::span<const SclSize> sizes = Products[product].Sizes;
    return sizes.empty() || std::any_of(sizes.begin(), sizes.end(),
                                        [breadth](const SclSize& size) { return size.Breadth == breadth; });
}

std::vector<DepthChoice> SclDepths(std::size_t product, std::string_view breadth)
{
    std::vector<DepthChoice> depths;
    for (const std::string_view text : DepthTextsOf(product, breadth)) {
        depths.push_back({text, InchesOf(text)});
    }
    return depths;
}

std::optional<Depth> FindSclDepth(std::size_t product, std::string_view breadth, std::string_view text)
{
    if (std::find(EveryDepth.begin(), EveryDepth.end(), text) == EveryDepth.end()) {
        return std::nullopt;
    }
    Depth depth{.Net = InchesOf(text)};
    for (const DepthChoice& choice : SclDepths(product, breadth)) {
        if (choice.Net < depth.Net) {
            depth.NextSmaller = choice.Net;
            depth.NextSmallerText = choice.Text;
        } else if (choice.Net > depth.Net) {
            depth.NextLargerText = choice.Text;
            break;
        }
    }
    return depth;
}

}  // namespace kordavan
