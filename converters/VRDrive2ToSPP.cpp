#include "VRDrive2ToSPP.h"

#include "ZIImageDef.h"

#include <QLoggingCategory>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

Q_LOGGING_CATEGORY(lcVRDrive2, "zph.converters.vrdrive2")

/// Ascending, with NaN after every number, so that the sort always sees a
/// strict weak order whatever the host reports.
bool exposureLess(double a, double b)
{
    if (std::isnan(a))
        return false;
    return std::isnan(b) || a < b;
}

} // namespace

void VRDrive2ToSPP::generateSPP(
    QStringList& images, const QList<ZIImageDef*>& imageDefs, double focalLength, LensModel lens)
{
    MerlinToSPP::generateSPP(images, focalLength, lens);

    const int bracket = m_nbPicts;
    if (bracket < 1)
        return;
    if (imageDefs.size() < bracket) {
        qCWarning(lcVRDrive2) << "bracket of" << bracket << "but only" << imageDefs.size()
                              << "image definitions: stacks keep their order";
        return;
    }

    // The exposure figures of the first bracket, in image order; the same
    // bracket order is taken to hold at every position.
    QVector<double> figures;
    figures.reserve(bracket);
    for (int k = 0; k < bracket; ++k) {
        const ZIImageDef* def = imageDefs.at(k);
        if (!def) {
            qCWarning(lcVRDrive2) << "no image definition for bracket image" << k
                                  << ": stacks keep their order";
            return;
        }
        figures.append(double(def->Exposure()));
    }

    // The median: trim the sorted figures from both ends down to one or two.
    QVector<double> sorted = figures;
    std::sort(sorted.begin(), sorted.end(), exposureLess);
    while (sorted.size() > 2) {
        sorted.removeFirst();
        sorted.removeLast();
    }
    const double median = sorted.first();

    // Among equal figures the last position wins: no early exit.
    int reference = 0;
    for (int k = 0; k < bracket; ++k) {
        if (figures.at(k) == median)
            reference = k;
    }
    if (reference == 0)
        return;

    for (QStringList& stack : m_stacks) {
        if (stack.size() > reference)
            stack.swapItemsAt(0, reference);
    }
}
