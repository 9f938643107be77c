// ClaussToSPP: reads the shooting script of a Clauss Rodeon head (plain text
// with "op_h-angle", "op_v-angle" and "op_shoot" lines) and turns it, with the
// user's photographs, into the panorama description it derives from: one stack
// per photo, the shots' angles in radians and links between overlapping photos.
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

class ZIImageDef;

class ClaussToSPP : public StructuredPanoramaProperties
{
public:
    /// An empty converter: description defaults with "Use recorded location"
    /// off, overlap 25 %, and no shots.
    ClaussToSPP();

    /// Reads the script at fileName into m_shots (cleared first). Every
    /// "op_shoot" line adds a shot at the last "op_h-angle" / "op_v-angle"
    /// values read before it (degrees, 0 until set; fractional parts are not
    /// part of a value). Returns false when the file cannot be opened or when
    /// an angle value is not a number; reading still goes on to the end and
    /// the bad angle counts as 0. A script without shots is not an error.
    /// A file of more than 64 MiB before its first NUL byte is refused (false).
    bool parse(const QString& fileName);
    /// parse() over the script's bytes (the text ends at the first NUL byte);
    /// fileName only names the script in warnings. No size limit applies.
    bool parseScript(const QByteArray& bytes, const QString& fileName);

    /// Appends to the description one stack per path of files, the yaw and
    /// pitch of every shot in radians, and a link (direction 0) for every pair
    /// of photos i < j whose centres are close enough for the wider of their
    /// two fields of view (from ZIImageDef::FocalLength, millimetres for a
    /// 36 x 24 mm frame). files and imageDefs describe the same photos in
    /// shooting order; the caller provides at least as many shots and
    /// definitions as photos (links stop at the shortest of the three lists).
    /// Run once on a record whose lists are empty.
    void generateSPP(QStringList& files, QList<ZIImageDef*> imageDefs);

    /// The shots read from the script, in file order; angles in degrees.
    QVector<ShootData> m_shots;
};
