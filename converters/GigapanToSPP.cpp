#include "GigapanToSPP.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lcGigapan, "zph.converters.gigapan")

AuthorizedLink makeLink(qint32 direction, qint64 from, qint64 to)
{
    AuthorizedLink link;
    link.m_direction = direction;
    // Both cells lie inside a grid that fits the photo list, so the indices
    // are below its length.
    link.m_stackIndices = { int(from), int(to) };
    return link;
}

} // namespace

GigapanToSPP::GigapanToSPP(int rows, int columns, int order, int stackSize, int skipCount)
    : m_stackSize(stackSize)
    , m_skipCount(skipCount)
    , m_columns(columns)
    , m_rows(rows)
    , m_order(order)
{
    m_useShootData = false;
    m_flag2 = false;
    m_autoDetection = true;
    m_overlap = 25.0;
}

qint64 GigapanToSPP::CellIndex(int order, int rows, int columns, int row, int column)
{
    const qint64 r = rows;
    const qint64 c = columns;
    const qint64 a = row;
    const qint64 b = column;
    switch (order) {
    case 0:
        return a + r * b;
    case 1:
        return c * a + b;
    case 2:
        return c * (r - 1 - a) + b;
    case 3:
        return a + r * (c - 1 - b);
    case 4: {
        const qint64 fromBottom = r - 1 - a;
        return fromBottom % 2 == 0 ? c * fromBottom + b : c * fromBottom + (c - 1 - b);
    }
    default:
        return -1;
    }
}

void GigapanToSPP::generateSPP(const QStringList& files, bool force360)
{
    const qint64 rows = m_rows;
    const qint64 cols = m_columns;
    const qint64 size = m_stackSize;
    const qint64 available = qint64(files.size()) - m_skipCount;
    const qint64 cells = rows > 0 && cols > 0 ? rows * cols : 0;
    // cells x size <= available, without forming a product that may overflow.
    const bool fits = size >= 1 && m_skipCount >= 0 && available >= 0 && cells <= available / size;
    if (!fits)
        qCWarning(lcGigapan) << "grid of" << m_rows << "x" << m_columns << "by" << m_stackSize
                             << "after" << m_skipCount << "skipped does not fit" << files.size()
                             << "photos: no links";

    // Stacks: only the start of each stack is tested against the list; in a
    // grid that fits the photos every stack is then complete. Past the end
    // nothing more is appended, so the loop stops there.
    if (size >= 1 && m_skipCount >= 0) {
        qint64 next = m_skipCount;
        for (qint64 k = 0; k < cells && next < files.size(); ++k) {
            QStringList stack;
            const qint64 end = qMin(next + size, qint64(files.size()));
            stack.reserve(int(end - next));
            for (qint64 p = next; p < end; ++p)
                stack.append(files.at(int(p)));
            next += size;
            m_stacks.append(stack);
        }
    }

    m_gridRows = m_rows;
    m_gridOrder = m_order;
    m_bracketCount = m_stackSize;
    m_gridFlag = force360;

    if (!fits || m_order < 0 || m_order > 4 || cells == 0)
        return;

    // Links, row by row from the top, each row from the left; every link is
    // seen from the upper or left cell (direction 4 from the lower left one).
    // The neighbours' indices are only formed where they lie inside the grid.
    const auto idx = [this](qint64 a, qint64 b) {
        return CellIndex(m_order, m_rows, m_columns, int(a), int(b));
    };
    m_links.reserve(m_links.size() + int(qMin<qint64>(4 * cells, 1 << 28)));
    for (qint64 a = 0; a < rows; ++a) {
        const bool hasBelow = a < rows - 1;
        for (qint64 b = 0; b < cols; ++b) {
            const bool hasRight = b < cols - 1;
            const qint64 here = idx(a, b);
            if (hasBelow)
                m_links.append(makeLink(1, here, idx(a + 1, b)));
            if (hasRight)
                m_links.append(makeLink(2, here, idx(a, b + 1)));
            else if (force360)
                m_links.append(makeLink(2, here, idx(a, 0)));
            if (hasBelow) {
                if (hasRight) {
                    m_links.append(makeLink(4, idx(a + 1, b), idx(a, b + 1)));
                    m_links.append(makeLink(3, here, idx(a + 1, b + 1)));
                } else if (force360) {
                    m_links.append(makeLink(4, idx(a + 1, b), idx(a, 0)));
                    m_links.append(makeLink(3, here, idx(a + 1, 0)));
                }
            }
        }
    }
}
