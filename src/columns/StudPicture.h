#pragma once

#include <string>
#include <vector>

#include "columns/StudProblem.h"
#include "columns/StudResult.h"

namespace kordavan {

/// One wind load as the sketch shows it.
struct PictureWind {
    char Letter = 'A';
    double Begin = 0;  // ft from the base
    double End = 0;
    double Psf = 0;  // below 0 for suction
    double Plf = 0;  // on one stud; 0 while the spacing cannot be read
    std::string Text{};
};

/// A wall stud as the sketch shows it, as far as the entries can be read; nothing is checked.
struct StudPicture {
    double Height = 0;  // ft; 0 while there is none to read
    std::string HeightText;
    std::string AxialText;  // empty while there is none
    std::string SizeText;   // such as "2x6 at 16 in. o.c."
    std::vector<PictureWind> Winds;
};

StudPicture ReadStudPicture(const StudEntry& entry);

/// The picture in words, for those who do not see it.
std::string DescribeStud(const StudPicture& picture);

/// The wind on a stud and its moment, in words.
std::string DescribeStudMoment(const StudTest& test);

}  // namespace kordavan
