#pragma once

#include <string>

#include "design/Session.h"

namespace kordavan {

enum class SectionOutline { Rectangle, Round, Flanged, Channel, Tube, Plates };

/// The cross section of a member as a sketch shows it.
struct SectionPicture {
    SectionOutline Outline = SectionOutline::Rectangle;
    double B = 0;           // net, in., with the ply between two plates; 0 while there is no member
    double D = 0;           // net, in.
    int PlyCount = 1;       // members or plates side by side
    double Lamination = 0;  // in.; 0 unless glued of layers
    double Web = 0;         // thickness of a web, of one wall or of one plate, in.; 0 in wood
    double Flange = 0;      // thickness of a flange or wall, in.
    std::string BText{};    // the net sizes as the trade writes them; a pair of plates has no breadth
    std::string DText{};
    std::string MakeUpText{};  // plies, laminations or thicknesses; empty for a member of one piece
};

SectionPicture ReadSectionPicture(const MemberCandidate& member);

/// The member tested last, of wood or steel.
SectionPicture ReadSectionPicture(const Session& session);

/// The picture in words, for those who do not see it.
std::string DescribeSection(const SectionPicture& picture);

}  // namespace kordavan
