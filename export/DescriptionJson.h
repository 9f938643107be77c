// DescriptionJson: the panorama description as a JSON object, one member per
// field of StructuredPanoramaProperties, named after the field without its
// "m_" prefix (the schema is in docs/json-schema.md). Angles are radians as
// in the record; a float field's number reads back to the same float (a
// negative zero reads back as zero).
#pragma once

#include "StructuredPanoramaProperties.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

class DescriptionJson
{
public:
    static QJsonObject toJson(const StructuredPanoramaProperties& panorama);

    /// Fills *panorama from object. Every member must be present with its
    /// type (integers must be whole numbers in range, angles and the focal
    /// length must fit a float, link indices must name existing stacks);
    /// members of other names are ignored. False with a
    /// reason naming the member in *error; *panorama is then unchanged.
    static bool fromJson(
        const QJsonObject& object, StructuredPanoramaProperties* panorama, QString* error);

    /// Indented UTF-8 JSON. False with a reason in *error.
    static bool write(
        const StructuredPanoramaProperties& panorama, const QString& path, QString* error);
    static bool read(const QString& path, StructuredPanoramaProperties* panorama, QString* error);
    /// read() over the file's bytes: a JSON object, then fromJson(). False
    /// with the reason (without a file name) in *error.
    static bool parse(
        const QByteArray& bytes, StructuredPanoramaProperties* panorama, QString* error);
};
