#include "ControlPointFilter.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace {

QString canonical(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

bool ControlPointFilter::matchStacks(const PtoProject& project, const QString& projectFolder,
    const StructuredPanoramaProperties& panorama, QVector<int>* stackOf, QVector<bool>* isReference,
    QString* error)
{
    QHash<QString, QPair<int, bool>> owner;
    for (int k = 0; k < panorama.m_stacks.size(); ++k) {
        const QStringList& stack = panorama.m_stacks[k];
        for (int s = 0; s < stack.size(); ++s)
            owner.insert(canonical(stack[s]), qMakePair(k, s == 0));
    }
    stackOf->clear();
    isReference->clear();
    for (int i = 0; i < project.imageCount(); ++i) {
        const QString name = project.imageName(i);
        const QString path = canonical(PtoProject::inFolder(projectFolder, name));
        const auto found = owner.constFind(path);
        if (found == owner.constEnd()) {
            if (error)
                *error = QStringLiteral("the project's image %1 (%2) is in no stack of the "
                                        "description")
                             .arg(i)
                             .arg(name);
            return false;
        }
        stackOf->append(found->first);
        isReference->append(found->second);
    }
    return true;
}

ControlPointFilter::ControlPointFilter(const StructuredPanoramaProperties& panorama,
    const QVector<int>& stackOf, const QVector<bool>& isReference, bool referenceLevelOnly)
    : m_stackOf(stackOf), m_isReference(isReference), m_referenceLevelOnly(referenceLevelOnly)
{
    for (const AuthorizedLink& link : panorama.m_links) {
        if (link.m_stackIndices.size() < 2)
            continue;
        const int a = link.m_stackIndices[0];
        const int b = link.m_stackIndices[1];
        m_links.insert(qMakePair(qMin(a, b), qMax(a, b)));
    }
}

bool ControlPointFilter::linked(int stackA, int stackB) const
{
    return m_links.contains(qMakePair(qMin(stackA, stackB), qMax(stackA, stackB)));
}

bool ControlPointFilter::allows(const PtoProject::ControlPoint& point) const
{
    if (point.first < 0 || point.second < 0 || point.first >= m_stackOf.size()
        || point.second >= m_stackOf.size())
        return false;
    const int a = m_stackOf[point.first];
    const int b = m_stackOf[point.second];
    if (a == b)
        return true;
    if (!linked(a, b))
        return false;
    if (m_referenceLevelOnly)
        return m_isReference.value(point.first) && m_isReference.value(point.second);
    return true;
}

QVector<PtoProject::ControlPoint> ControlPointFilter::filter(
    const QVector<PtoProject::ControlPoint>& points, QMap<QPair<int, int>, int>* removed) const
{
    QVector<PtoProject::ControlPoint> kept;
    for (const PtoProject::ControlPoint& point : points) {
        if (allows(point)) {
            kept.append(point);
        } else if (removed) {
            const int a = m_stackOf.value(point.first, -1);
            const int b = m_stackOf.value(point.second, -1);
            ++(*removed)[qMakePair(qMin(a, b), qMax(a, b))];
        }
    }
    return kept;
}
