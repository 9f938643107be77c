// ControlPointFilter: keeps only the control points that the panorama
// description allows. Points inside one stack are kept; a point between two
// stacks is kept only when an authorised link joins them (in either order).
// When links are to be detected in the reference level only, a point between
// two stacks must also join their first images.
#pragma once

#include "PtoProject.h"
#include "StructuredPanoramaProperties.h"

#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

class ControlPointFilter
{
public:
    /// The stack of every image of project and whether it is its stack's
    /// first image, by matching the project's image names (resolved from
    /// projectFolder) with the paths of panorama's stacks. False with a reason
    /// in *error when an image belongs to no stack.
    static bool matchStacks(const PtoProject& project, const QString& projectFolder,
        const StructuredPanoramaProperties& panorama, QVector<int>* stackOf,
        QVector<bool>* isReference, QString* error);

    /// stackOf and isReference: per image of the project the points refer to.
    ControlPointFilter(const StructuredPanoramaProperties& panorama, const QVector<int>& stackOf,
        const QVector<bool>& isReference, bool referenceLevelOnly);

    bool linked(int stackA, int stackB) const;
    /// True when the point may stay.
    bool allows(const PtoProject::ControlPoint& point) const;

    /// The allowed points, in their order. *removed (optional) counts the
    /// removed points per pair of stacks (smaller index first).
    QVector<PtoProject::ControlPoint> filter(
        const QVector<PtoProject::ControlPoint>& points, QMap<QPair<int, int>, int>* removed) const;

private:
    QSet<QPair<int, int>> m_links;
    QVector<int> m_stackOf;
    QVector<bool> m_isReference;
    bool m_referenceLevelOnly;
};
