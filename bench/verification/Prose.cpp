#include "Prose.h"

#include <cmath>
#include <stdexcept>

#include "Figure.h"

namespace kordavan::Verification {

namespace {

const SweepFamily& FamilyOf(const std::vector<SweepGroup>& sweep, const std::string& name,
                            const std::string& quantity)
{
    for (const SweepGroup& group : sweep) {
        for (const SweepFamily& family : group.Families) {
            if (family.Name == name && family.Quantity == quantity) {
                return family;
            }
        }
    }
    throw std::logic_error("no family " + name + ", " + quantity);
}

/// The magnitude of a difference as the text tells it.
std::string PerCent(double difference)
{
    return Fixed(std::abs(difference), 1) + " %";
}

}  // namespace

std::string Introduction()
{
    return R"(# Verification

Kordavan's figures beside figures that were worked out without it: by hand from published formulas, from published
tables, and from exact beam theory. This page is written by a program, `kordavan-verification`, from real runs of the
engine; a test runs it again and fails when a figure here is no longer true or leaves its limit.

* **By hand** is the calculation itself. The figure beside it is worked out from just that text, in the units given.
* **Difference** is Kordavan less the hand figure, in per cent of the hand figure. **Within** is what the test allows.
  Most rows are allowed 0.001 %, the rounding of stored figures; where a row is allowed more, its text says why.
* Every request can be put to the program again: [verification.jsonl](verification.jsonl) has them, numbered as here.
  `kordavan-batch docs/verification.jsonl` answers them.
* NDS is the National Design Specification for Wood Construction of the American Wood Council, 2018 unless a year is
  given; AISC ASD the Specification for Structural Steel Buildings, Allowable Stress Design, of 1989, in the Manual of
  Steel Construction, 9th edition.

How far deflections can be trusted is told in [chapter 11](#11-how-far-the-method-is-from-exact-beam-theory), where the
program departs from a published rule in [chapter 12](#12-departures-from-published-rules).

)";
}

std::string WhenToDistrust(const std::vector<SweepGroup>& sweep)
{
    const auto lowest = [&sweep](const std::string& name, const std::string& quantity) {
        return PerCent(FamilyOf(sweep, name, quantity).LowestFound());
    };
    const auto highest = [&sweep](const std::string& name, const std::string& quantity) {
        return PerCent(FamilyOf(sweep, name, quantity).HighestFound());
    };
    const std::string tip = "deflection of the tip";
    const double timesAsFar =
        1 / (1 + FamilyOf(sweep, "partial load over the whole overhang", tip).LowestFound() / 100);
    return "### 11.3 When to distrust a figure\n\n"
           "* **A floor, roof or wall load along the whole span:** trust it. The deflection is 0.2 % low, on a hip or "
           "valley up to " +
           highest("hip or valley, with 0 to 100 plf of uniform load", "deflection") +
           " high.\n"
           "* **Point loads:** near midspan the deflection is up to " +
           lowest("one point load", "deflection") + " low; nearer to a support it is high, up to " +
           highest("two equal point loads, a from each end", "deflection") +
           ". High is the safe side: a beam that passes bends less than the report says.\n"
           "* **A short partial load, less than a fifth of the span, about midspan:** up to " +
           lowest("partial load about midspan", "deflection") +
           " low and more when shorter still, on the unsafe side: the strips at its two ends are not counted. Enter it "
           "as a point load in its middle, or leave that much room below the limit.\n"
           "* **The tip of an overhang under a partial load: do not trust it.** It comes out " +
           highest("partial load over the whole overhang", tip) + " to " +
           lowest("partial load over the whole overhang", tip) +
           " low, most of all on a short overhang, where the real tip sinks " + Fixed(timesAsFar, 0) +
           " times as far as the report says, and a tip that is shown to lift may sink. To see the tip, enter half of a "
           "load that covers the overhang as one point load at its end: the moment over the support is the same and the "
           "tip comes out 2 to 9 % high (example 1.5d). Section and shear are then checked with the load as it is.\n"
           "* **Several point loads on an overhang:** the tip comes out up to " +
           lowest("two equal point loads, at the tip and half way", tip) +
           " low, as each load counts with what it does at its own place. One load at the tip is exact.\n"
           "* **The span of an overhanging beam:** as a simple span, and up to " +
           lowest("uniform load on span and overhang", "deflection") +
           " low where the overhang is loaded too, because the greatest lift and the greatest drop are taken together "
           "though they lie at different places.\n"
           "* **Two and three spans:** the load stands on all spans at once. A live load on one of two spans alone bends "
           "that span by 0.0092 w L^4 / EI instead of 0.0054, two thirds more; check a lively floor as a simple span.\n"
           "* **Moments** of the loads are exact to 0.01 %, on a hip up to " +
           highest("hip or valley, with 0 to 100 plf of uniform load", "moment of the loads") +
           " high. With self-weight a simple span is never low. The span of an overhanging beam is up to " +
           lowest("point load on the span, overhang 0.3 L", "moment with self-weight") +
           " low when a load near R1 makes the peak there, since the weight beyond the peak is not counted; the sweep has "
           "1000 lb on a beam that weighs 15 plf, and a lighter load is worse. **Reactions and shears** are exact.\n"
           "* Deflections of this page are those of bending alone, without creep and without the yielding of shear, which "
           "adds a few per cent to a short deep beam in any program of this kind.\n\n";
}

std::string Departures()
{
    return R"(## 12 Departures from published rules

Each of these is meant. "Safe" asks for more than the published rule, "unsafe" for less.

| Where | Published | Kordavan | Side |
|---|---|---|---|
| Deflection, simple span | 5 / 384 | 0.013 | unsafe by 0.2 % |
| Deflection under point and partial loads | elastic curve | equivalent uniform load | chapter 11 |
| Tip of an overhang under a partial load | load x place x (span + place) / 3 EI and more | a strip law that lacks the span | unsafe, chapter 11 |
| Self-weight at the peak of an overhanging beam | w x (L - x) / 2 less the part of the overhang | w x^2 / 2 | chapter 11 |
| Point load within d of a support since NDS 2001 | a / d of its own shear | its part off the reaction | unsafe by P (a / L) (1 - a / d), 1.9 |
| Size factor of 6x timbers deeper than 12 in. | net depth | nominal depth | safe by 0.4 %, 2.1 |
| Emin of glulams in CL | E of the weak axis | E of the strong axis | FbE high by 12 %, 3.3 |
| Emin of composite lumber in CL | COV near 0.10 | COV 0.25 | safe |
| Fc-perp of glulams deeper than 15 in. | by combination | 650 psi | either |
| Continuous beams | CL at the supports, where the underside is pressed | fully braced | unsafe where the underside is free |
| CF of a column when plane D1 governs | by the width, D2 | 1.15 of a 4 in. face | unsafe by up to 4.5 %, 7.1 |
| Quick picks of columns under NDS 2018, plane D2 | 0.822 Emin' | 0.3 E' | safe by 0.1 % |
| Axial load of studs in the interaction | duration of the shortest load | duration of the axial load | safe, 8.1 |
| Axial capacity of studs by itself | with duration | without | safe |
| FbE of studs | le by Table 3.3.3 | le = height | unsafe where it governs |
| Steel beams past Lu | AISC ASD F1-6 to F1-8 | not computed, said so | |
| Bearing of 50 ksi steel, interior support | 33 | 23.76 | safe, 5.3 |
| Notches since NDS 2012 | 3.4.3 | by the year clicked in the list | chapter 10 |
)";
}

}  // namespace kordavan::Verification
