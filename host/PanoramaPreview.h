// PanoramaPreview: a finished panorama on screen: the picture scaled to the
// space it has, its size in pixels, "Open" and "Show in folder", and the path
// of the Hugin project it was stitched from.
#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QPushButton;

class PanoramaPreview : public QWidget
{
    Q_OBJECT

public:
    explicit PanoramaPreview(QWidget* parent = nullptr);

    /// Reads `panorama` (reduced while reading when it is large) and shows it
    /// with `pixelSize` and `stitchedProject`. False when it cannot be read;
    /// the texts are shown still.
    bool SetPanorama(
        const QString& panorama, const QSize& pixelSize, const QString& stitchedProject);
    void Clear();

    QString Panorama() const { return m_path; }
    /// The picture as read (at most ShownSide pixels on its longer side).
    QImage Picture() const { return m_picture; }
    QString SizeText() const;
    QString ProjectText() const;

    /// Longest side the preview reads a panorama at.
    static constexpr int ShownSide = 2400;

signals:
    /// "Open" or "Show in folder" asks to open this URL (the panorama or its
    /// folder); by default it goes to QDesktopServices.
    void OpenRequested(const QUrl& url);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Rescale();

    QString m_path;
    QImage m_picture;
    QLabel* m_lbPicture = nullptr;
    QLabel* m_lbSize = nullptr;
    QLabel* m_lbProject = nullptr;
    QPushButton* m_pbOpen = nullptr;
    QPushButton* m_pbShowFolder = nullptr;
};
