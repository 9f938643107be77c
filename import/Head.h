// Head: the four kinds of motorised head a panorama can be imported from.
#pragma once

#include <QString>

enum class Head { Papywizard, VRDrive2, Clauss, Gigapan };

/// The head's name on the command line: "papywizard", "vrdrive2", "clauss", "gigapan".
QString HeadName(Head head);
/// The head named `name` (as HeadName writes it); false when no head has that name.
bool HeadFromName(const QString& name, Head* head);
/// Whether the head leaves a record file (every head but Gigapan).
constexpr bool HasRecord(Head head)
{
    return head != Head::Gigapan;
}
/// Whether the head writes a Papywizard-shaped XML record (Papywizard, VR Drive 2).
constexpr bool HasXmlRecord(Head head)
{
    return head == Head::Papywizard || head == Head::VRDrive2;
}
