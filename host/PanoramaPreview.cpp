#include "PanoramaPreview.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

PanoramaPreview::PanoramaPreview(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("PanoramaPreview"));
    m_lbPicture = new QLabel(this);
    m_lbPicture->setObjectName(QStringLiteral("m_lbPicture"));
    m_lbPicture->setAlignment(Qt::AlignCenter);
    m_lbPicture->setMinimumSize(240, 120);
    m_lbPicture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_lbSize = new QLabel(this);
    m_lbSize->setObjectName(QStringLiteral("m_lbSize"));
    m_lbProject = new QLabel(this);
    m_lbProject->setObjectName(QStringLiteral("m_lbProject"));
    m_lbProject->setWordWrap(true);
    m_lbProject->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pbOpen = new QPushButton(tr("Open"), this);
    m_pbOpen->setObjectName(QStringLiteral("m_pbOpen"));
    m_pbShowFolder = new QPushButton(tr("Show in folder"), this);
    m_pbShowFolder->setObjectName(QStringLiteral("m_pbShowFolder"));
    connect(m_pbOpen, &QPushButton::clicked, this,
        [this] { emit OpenRequested(QUrl::fromLocalFile(m_path)); });
    connect(m_pbShowFolder, &QPushButton::clicked, this,
        [this] { emit OpenRequested(QUrl::fromLocalFile(QFileInfo(m_path).absolutePath())); });

    auto* line = new QHBoxLayout;
    line->addWidget(m_lbSize, 1);
    line->addWidget(m_pbOpen);
    line->addWidget(m_pbShowFolder);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lbPicture, 1);
    layout->addLayout(line);
    layout->addWidget(m_lbProject);
}

bool PanoramaPreview::SetPanorama(
    const QString& panorama, const QSize& pixelSize, const QString& stitchedProject)
{
    m_path = panorama;
    QImageReader reader(panorama);
    const QSize full = reader.size().isValid() ? reader.size() : pixelSize;
    if (full.isValid() && qMax(full.width(), full.height()) > ShownSide)
        reader.setScaledSize(full.scaled(ShownSide, ShownSide, Qt::KeepAspectRatio));
    m_picture = reader.read();
    const QSize size = pixelSize.isValid() ? pixelSize : full;
    m_lbSize->setText(size.isValid() ? tr("%1: %2 × %3 pixels")
                                           .arg(QFileInfo(panorama).fileName())
                                           .arg(size.width())
                                           .arg(size.height())
                                     : QFileInfo(panorama).fileName());
    m_lbProject->setText(
        tr("Stitched Hugin project: %1").arg(QDir::toNativeSeparators(stitchedProject)));
    if (m_picture.isNull())
        m_lbPicture->setText(tr("The panorama cannot be shown here; open it with \"Open\"."));
    Rescale();
    return !m_picture.isNull();
}

void PanoramaPreview::Clear()
{
    m_path.clear();
    m_picture = QImage();
    m_lbPicture->clear();
    m_lbSize->clear();
    m_lbProject->clear();
}

QString PanoramaPreview::SizeText() const
{
    return m_lbSize->text();
}

QString PanoramaPreview::ProjectText() const
{
    return m_lbProject->text();
}

void PanoramaPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Rescale();
}

void PanoramaPreview::Rescale()
{
    if (m_picture.isNull())
        return;
    const QSize room = m_lbPicture->size();
    if (room.width() < 2 || room.height() < 2)
        return;
    m_lbPicture->setPixmap(
        QPixmap::fromImage(m_picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}
