// ImportOptions: the stitching options a user chooses on an import page (its
// check boxes and radio buttons) or on the command line, and how they go into
// the panorama description after the head's converter has run. Each head's
// page offers some of them; WriteTo writes exactly those.
#pragma once

#include "Head.h"

class StructuredPanoramaProperties;

struct ImportOptions
{
    /// A linking choice that leaves the description's value as it is (a page
    /// with neither radio button of a pair checked).
    static constexpr int Keep = -1;

    /// "Auto detection": control points are looked for.
    bool autoDetection = true;
    /// "Clean wrong link".
    bool cleanWrongLinks = false;
    /// "Skip optimization".
    bool skipOptimization = false;
    /// "Use recorded location" ("Guided optimization" on the Clauss page).
    bool useRecordedLocation = true;
    /// "Detect links in": 0 the reference level, 1 all stack levels, or Keep.
    int levelLinking = 0;
    /// "For a stack": 0 hard links, 1 detect control points, or Keep.
    int stackLinking = 0;
    /// VR Drive 2 "Output": 2 tonemapped 8/16 bits, 3 HDR 32 bits.
    int outputMode = 2;
    /// Gigapan overlap between neighbours, per cent.
    double overlap = 40.0;

    /// Detecting links in every stack level needs control points inside a
    /// stack: choosing level 1 also chooses stack linking 1.
    void ChooseLevelLinking(int level);
    /// Hard links inside a stack leave only the reference level to detect
    /// links in: choosing stack linking 0 also chooses level 0.
    void ChooseStackLinking(int stack);
    /// False for the one pair the two rules above never produce: all levels
    /// with hard links inside the stacks.
    bool LinkingConsistent() const { return !(levelLinking == 1 && stackLinking == 0); }

    /// Which options a head's page offers.
    static bool OffersLinking(Head head) { return head != Head::Clauss; }
    static bool OffersRecordedLocation(Head head) { return head != Head::Gigapan; }
    static bool OffersOutputMode(Head head) { return head == Head::VRDrive2; }
    static bool OffersOverlap(Head head) { return head == Head::Gigapan; }

    /// Writes the options `head`'s page offers into `record`; the others keep
    /// their values. Linking values of Keep are not written.
    void WriteTo(Head head, StructuredPanoramaProperties& record) const;
};
