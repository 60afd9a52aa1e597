#pragma once

#include <string>

#include "design/Member.h"

namespace kordavan {

/// The cross section of a member as a sketch shows it.
struct SectionPicture {
    bool IsRound = false;
    double B = 0;           // net, in.; 0 while there is no member
    double D = 0;           // net, in.
    int PlyCount = 1;       // members side by side
    double Lamination = 0;  // in.; 0 unless glued of layers
    std::string BText;      // the net sizes as the trade writes them
    std::string DText;
    std::string MakeUpText{};  // plies or laminations; empty for a member of one piece
};

SectionPicture ReadSectionPicture(const MemberCandidate& member);

/// The picture in words, for those who do not see it.
std::string DescribeSection(const SectionPicture& picture);

}  // namespace kordavan
