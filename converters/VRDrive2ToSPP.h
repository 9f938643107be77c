// VRDrive2ToSPP: the VR Drive 2 head writes its record as an XML preset in the
// shape MerlinToSPP reads. The layout is the same; for bracketed (HDR)
// shooting the medium exposure of every bracket becomes the first image, the
// reference, of its stack.
#pragma once

#include "MerlinToSPP.h"

#include <QList>
#include <QStringList>

class ZIImageDef;

class VRDrive2ToSPP : public MerlinToSPP
{
public:
    VRDrive2ToSPP() = default;

    /// Runs MerlinToSPP::generateSPP(images, focalLength, lens), then finds
    /// the medium exposure among the first bracket's images (imageDefs[0] to
    /// imageDefs[m_nbPicts - 1], ZIImageDef::Exposure) and moves the image at
    /// that position to the front of every stack, swapping it with the first.
    /// The lower of the two middle figures is the medium one of an even
    /// bracket; among equal figures the last position wins. Links and angles
    /// are not touched. With fewer than m_nbPicts definitions (or a null one)
    /// nothing is reordered; a stack too short for the position is left as it is.
    void generateSPP(QStringList& images, const QList<ZIImageDef*>& imageDefs, double focalLength,
        LensModel lens);
};
