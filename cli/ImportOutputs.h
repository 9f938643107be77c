// ImportOutputs: the three files an import writes, as one set: the Hugin
// project <name>.pto, the JSON description <name>.json and the layout picture
// <name>-layout.png. They are checked before anything is read, then written
// under the output folder's lock, each to a temporary file, and renamed into
// place together only when all three are complete; existing ones are
// replaced only with --force.
#pragma once

#include <QString>
#include <QStringList>

struct ExportInput;

class ImportOutputs
{
public:
    /// The files of name in folder (as the user gave it).
    ImportOutputs(const QString& folder, const QString& name);

    /// Absolute paths.
    QString project() const;
    QString description() const;
    QString layout() const;
    QStringList all() const;

    /// Before anything is read: no output is one of inputs, the folder can
    /// be written, and no output exists unless force. Returns the exit code
    /// (ExitCode::Done when sound), with one line in *error otherwise.
    int check(const QStringList& inputs, bool force, QString* error) const;

    /// Writes the project, the description and the layout picture of input,
    /// making the folder if needed (and removing it again if the set is not
    /// written). A stop signal received while writing leaves the earlier files
    /// as they were. Returns the exit code, with one line in *error.
    int write(const ExportInput& input, bool force, QString* error) const;

private:
    QString m_givenFolder;
    QString m_folder;
    QString m_project;
    QString m_description;
    QString m_layout;
};
