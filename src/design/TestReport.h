#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "design/Session.h"

namespace kordavan {

/// Every text of the test report screen, by the names of its labels and panels. Rows that do not apply are
/// empty.
struct TestReport {
    std::string DisplayChoice;
    std::string GradeLabel;
    std::string Modifiers;
    std::string SectionReq;
    std::string SectionProp;
    std::string SecStatus;
    std::string SecPercent;
    std::string ShearReq;
    std::string ShearProp;
    std::string ShearStatus;
    std::string HorPercent;
    std::string DeflReq;
    std::string DeflProp;
    std::string DeflStatus;
    std::string DeflPercent;
    std::string LDeflReq;
    std::string LDeflProp;
    std::string LDeflStatus;
    std::string LDeflPercent;
    std::string OHDeflReq;
    std::string OHDeflProp;
    std::string OHDeflStatus;
    std::string OHDeflPercent;
    std::string OHLDeflReq;
    std::string OHLDeflProp;
    std::string OHLDeflStatus;
    std::string OHLDeflPercent;
    std::string NoSplitLabel;
    std::string SmallChoice;
    std::string DeadDefl;
    std::string DeflTooHigh;
    std::string Unbalancedlabel;
    std::string Label5;  // actual size
    std::string Label6;  // live load deflection
    std::string Label7;  // row captions: section, shear, total, live, overhang total, overhang live
    std::string Label8;
    std::string Label9;
    std::string Label10;  // reactions
    std::string Label11;  // total load deflection
    std::string Label12;
    std::string Label13;
    std::string Label14;
    std::string Label15;  // live reactions
};

struct TestReportField {
    std::string_view Name;
    std::string TestReport::*Text;
};

inline constexpr std::array TestReportFields{
    TestReportField{"DisplayChoice", &TestReport::DisplayChoice},
    TestReportField{"GradeLabel", &TestReport::GradeLabel},
    TestReportField{"Modifiers", &TestReport::Modifiers},
    TestReportField{"SectionReq", &TestReport::SectionReq},
    TestReportField{"SectionProp", &TestReport::SectionProp},
    TestReportField{"SecStatus", &TestReport::SecStatus},
    TestReportField{"SecPercent", &TestReport::SecPercent},
    TestReportField{"ShearReq", &TestReport::ShearReq},
    TestReportField{"ShearProp", &TestReport::ShearProp},
    TestReportField{"ShearStatus", &TestReport::ShearStatus},
    TestReportField{"HorPercent", &TestReport::HorPercent},
    TestReportField{"DeflReq", &TestReport::DeflReq},
    TestReportField{"DeflProp", &TestReport::DeflProp},
    TestReportField{"DeflStatus", &TestReport::DeflStatus},
    TestReportField{"DeflPercent", &TestReport::DeflPercent},
    TestReportField{"LDeflReq", &TestReport::LDeflReq},
    TestReportField{"LDeflProp", &TestReport::LDeflProp},
    TestReportField{"LDeflStatus", &TestReport::LDeflStatus},
    TestReportField{"LDeflPercent", &TestReport::LDeflPercent},
    TestReportField{"OHDeflReq", &TestReport::OHDeflReq},
    TestReportField{"OHDeflProp", &TestReport::OHDeflProp},
    TestReportField{"OHDeflStatus", &TestReport::OHDeflStatus},
    TestReportField{"OHDeflPercent", &TestReport::OHDeflPercent},
    TestReportField{"OHLDeflReq", &TestReport::OHLDeflReq},
    TestReportField{"OHLDeflProp", &TestReport::OHLDeflProp},
    TestReportField{"OHLDeflStatus", &TestReport::OHLDeflStatus},
    TestReportField{"OHLDeflPercent", &TestReport::OHLDeflPercent},
    TestReportField{"NoSplitLabel", &TestReport::NoSplitLabel},
    TestReportField{"SmallChoice", &TestReport::SmallChoice},
    TestReportField{"DeadDefl", &TestReport::DeadDefl},
    TestReportField{"DeflTooHigh", &TestReport::DeflTooHigh},
    TestReportField{"Unbalancedlabel", &TestReport::Unbalancedlabel},
    TestReportField{"Label5", &TestReport::Label5},
    TestReportField{"Label6", &TestReport::Label6},
    TestReportField{"Label7", &TestReport::Label7},
    TestReportField{"Label8", &TestReport::Label8},
    TestReportField{"Label9", &TestReport::Label9},
    TestReportField{"Label10", &TestReport::Label10},
    TestReportField{"Label11", &TestReport::Label11},
    TestReportField{"Label12", &TestReport::Label12},
    TestReportField{"Label13", &TestReport::Label13},
    TestReportField{"Label14", &TestReport::Label14},
    TestReportField{"Label15", &TestReport::Label15},
};

/// The member tested last as shown: breadth, depth and species, or the steel shape.
std::string TestedMemberText(const Session& session);

/// The report of the member tested last.
TestReport MakeTestReport(const Session& session);

/// The verdict on the member as a whole: "OK", "Fail", or "OK with NO SPLITS".
std::string_view OverallText(const MemberTestResult& result);

/// The part of its capacity that a row of the report tells: 1 of "100%"; none of an empty text.
std::optional<double> RatioOf(std::string_view percentText);

}  // namespace kordavan
