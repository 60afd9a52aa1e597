#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "design/Session.h"

namespace kordavan {

/// Rising is the roof load of a hip or valley as entered, RisingLine what it makes on the beam, Beside the
/// uniform load that may stand beside it.
enum class PictureLoadKind { Uniform, Point, Partial, Rising, RisingLine, Beside };

/// One load as a sketch shows it.
struct PictureLoad {
    PictureLoadKind Kind = PictureLoadKind::Uniform;
    char Letter = 'A';
    std::size_t Slot = 0;
    double Begin = 0;  // ft from R1; a load on the overhang stands beyond the span
    double End = 0;    // as Begin for a point load
    double Total = 0;  // lb or plf, at its most; psf of a rising load
    double Live = 0;
    bool HasPlace = true;  // false where its distances do not say where it stands
    bool OnOverhang = false;
};

/// A beam with its loads, as far as the entries can be read; nothing is checked.
struct LoadPicture {
    SupportCondition Support = SupportCondition::SimpleSpan;
    int SpanCount = 1;
    double Span = 0;      // ft; 0 while there is none to read
    double Overhang = 0;  // ft
    std::vector<PictureLoad> Loads;
    double Equivalent = 0;       // plf; the load that stands for a rising one, 0 while there is none
    std::string UnbalancedLine;  // which live loads are out, if any

    double Length() const { return SpanCount * Span + Overhang; }
};

LoadPicture ReadLoadPicture(const Session& session);

/// The loads of a beam as they were calculated.
LoadPicture PictureOfCalculated(const BeamNumbers& beam);

/// The picture in words, for those who do not see it.
std::string DescribePicture(const LoadPicture& picture);

/// The letter of a load on screen and in print: A uniform, B to G points, H to L partial loads.
char PointLetter(std::size_t slot);
char PartialLetter(std::size_t slot);

}  // namespace kordavan
