#include "ExportInputBuilder.h"

#include "FieldOfView.h"
#include "GigapanPositions.h"
#include "HuginProjectWriter.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("ExportInputBuilder", text);
}

} // namespace

bool ExportInputBuilder::Build(const StructuredPanoramaProperties& record,
    const QHash<QString, ImageInfo>& images, double focal, LensModel lens, ExportInput* input,
    QString* error)
{
    const auto fail = [error](const QString& reason) {
        if (error)
            *error = reason;
        return false;
    };
    if (record.m_stacks.isEmpty())
        return fail(tr("The description holds no stack."));
    for (const QStringList& stack : record.m_stacks) {
        if (stack.isEmpty())
            return fail(tr("The description holds an empty stack."));
        for (const QString& path : stack) {
            if (!images.contains(path))
                return fail(tr("Nothing is known of %1.").arg(QDir::toNativeSeparators(path)));
        }
    }
    if (!(focal > 0.0))
        return fail(tr("Neither the description nor the photographs give a focal length."));
    input->panorama = record;
    input->images = images;
    input->focalLength = focal;
    input->lens = lens == LensFisheye ? LensFisheye : LensStandard;
    input->positions = Positions(record, images, focal, input->lens);
    return true;
}

QVector<StackPosition> ExportInputBuilder::Positions(const StructuredPanoramaProperties& record,
    const QHash<QString, ImageInfo>& images, double focal, LensModel lens)
{
    if (record.m_stacks.isEmpty())
        return {};
    if (!record.m_yaw.isEmpty()) {
        return HuginProjectWriter::recordedPositions(
            record, qMax(1, int(record.m_stacks.first().size())));
    }
    // The pictures as they stand on the head: turned by their orientation.
    const int rows = qMax(1, record.m_gridRows);
    const int columns = qMax(1, int(record.m_stacks.size()) / rows);
    const ImageInfo first = images.value(record.m_stacks.first().value(0));
    const int w = first.pixelSize.width();
    const int h = first.pixelSize.height();
    const bool turned = first.orientation >= 5;
    const double across = FieldOfView::degrees(focal, lens, w, h, turned ? h : w);
    const double up = FieldOfView::degrees(focal, lens, w, h, turned ? w : h);
    QVector<StackPosition> positions = GigapanPositions::compute(
        rows, columns, record.m_gridOrder, record.m_overlap, across, up, record.m_gridFlag);
    positions.resize(record.m_stacks.size());
    return positions;
}
