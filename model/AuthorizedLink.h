// AuthorizedLink: two stacks that may overlap, so the host may look for
// control points between them.
#pragma once

#include <QVector>
#include <QtGlobal>

struct AuthorizedLink
{
    /// How the second stack lies seen from the first: 0 unknown, 1 below,
    /// 2 to the right, 3 below right, 4 above right.
    qint32 m_direction = 0;
    /// The stack indices, first the stack seen from, then its neighbour.
    QVector<int> m_stackIndices;
};
