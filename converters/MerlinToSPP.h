// MerlinToSPP: reads the XML record that the head-control program of Merlin
// and Orion heads writes, and turns it with the user's photographs into the
// panorama description it derives from.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class QDomElement;
class QIODevice;

class MerlinToSPP : public StructuredPanoramaProperties
{
public:
    MerlinToSPP();

    /// Reads the record at fileName into the members below (the description's
    /// own fields are not touched). Returns false when the file cannot be
    /// opened or is not well-formed XML, and also refuses files over 16 MiB and
    /// documents that declare entities; the members then keep their reset
    /// values. Missing elements are never errors.
    bool parse(const QString& fileName);
    /// parse() over a record's bytes, with the same limits.
    bool parseRecord(const QByteArray& bytes);

    /// Appends stacks, angles (radians), focal length, lens and links to the
    /// description. images: the photographs in shooting order. focalLength:
    /// millimetres, negative to take the record's. lens: LensUnknown to take
    /// the record's. Expects m_nbPicts >= 1 (a smaller count is read as 1).
    /// Stacks past the last recorded shot get no links. Run once on a freshly
    /// parsed record.
    void generateSPP(const QStringList& images, double focalLength, LensModel lens);

    /// The recorded shots, in file order.
    QVector<ShootData> m_shoots;
    QString m_title;
    QString m_gps;
    QString m_comment;
    /// Millimetres, multiplied by the sensor coefficient; -1.0 without a lens
    /// element, 0 with a lens element that has no focal.
    double m_xmlFocal = -1.0;
    /// Crop coefficient; 1.0 when absent or not a number.
    double m_sensorCoef = 1.0;
    /// Pictures per bracket; -1 without a bracketing element.
    qint32 m_nbPicts = -1;
    /// A LensModel value: 1 when the record says fisheye, else 0.
    qint32 m_xmlLensType = 0;
    /// The camera was mounted in portrait orientation.
    bool m_portrait = false;

private:
    /// The members above to their values before any record is read.
    void clearRecord();
    /// Reads the open device (name names it in messages) into the members.
    bool readRecord(QIODevice* device, const QString& name);
    void readShots(const QDomElement& shoot);
    void readHeader(const QDomElement& header);
    /// Links between the first s stacks, each placed by its first shot.
    void appendLinks(int stackCount, int bracket, double focal);
};
