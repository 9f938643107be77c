// PhotoFiles: which files an import takes as photographs, and why a file
// cannot be one; the stitch checks a project's photographs with it before
// its first step. Every file refused is named with its reason: a dangling
// link, a link loop, something that is not a regular file (a FIFO), an empty
// file, one that cannot be read, one whose name a Hugin project cannot hold.
#pragma once

#include <QString>
#include <QStringList>

namespace PhotoFiles {

/// Why path cannot be read as a photograph ("a dangling link", "empty (0
/// bytes)", ...); empty when it can.
QString problem(const QString& path);

/// name for a one-line message: a line break shows as \n, another control
/// character as \xNN.
QString printable(const QString& name);

/// True when a folder's file is a layout picture of an import
/// ("<name>-layout.png"), never a photograph.
bool isLayoutPicture(const QString& fileName);

/// The photographs named by arguments: files as given, folders by their
/// pictures of suffixes (lower case) in name order, layout pictures left out.
/// sortByName: sort the whole list by name. Empty on success, else one line
/// naming every file that cannot be used and why.
QString collect(const QStringList& arguments, const QStringList& suffixes, bool sortByName,
    QStringList* photos);

} // namespace PhotoFiles
