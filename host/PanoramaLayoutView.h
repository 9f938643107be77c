// PanoramaLayoutView: draws the positions of a panorama description and the
// authorised links between them. Given the layout picture (thumbnails at
// their positions, the links and the stack numbers) it shows that, scaled to
// the widget; otherwise one dot per stack, placed by its yaw and pitch (or,
// for a grid without angles, by its row and column), and one line per link,
// coloured by direction.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QImage>
#include <QPointF>
#include <QVector>
#include <QWidget>

class PanoramaLayoutView : public QWidget
{
    Q_OBJECT

public:
    /// Where the stacks lie. With angles: x is the yaw and y the pitch of the
    /// stack's first shot, in degrees (the shot of stack k is the first one
    /// after the images of the stacks before it, bounded by the angle
    /// vectors). Without angles but with grid rows: x is the column and y
    /// minus the row (rows counted from the top), undoing the shooting order.
    struct Layout
    {
        QVector<QPointF> positions;
        /// True when the positions are degrees, false for grid cells.
        bool angles = false;
    };
    static Layout StackPositions(const StructuredPanoramaProperties& record);

    explicit PanoramaLayoutView(QWidget* parent = nullptr);

    /// Also forgets the picture.
    void SetPanorama(const StructuredPanoramaProperties& record);
    /// The layout picture to show instead of the dots (LayoutPicture::render);
    /// a null image brings the dots back.
    void SetPicture(const QImage& picture);
    QImage Picture() const { return m_picture; }
    /// Draws the layout into `size` pixels with the widget's palette.
    QImage Render(const QSize& size) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Draw(QPainter& painter, const QRectF& area) const;

    StructuredPanoramaProperties m_record;
    Layout m_layout;
    QImage m_picture;
};
