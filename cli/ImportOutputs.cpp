#include "ImportOutputs.h"

#include "DescriptionJson.h"
#include "ExitCode.h"
#include "ExportInput.h"
#include "HuginProjectWriter.h"
#include "LayoutPicture.h"
#include "OutputFiles.h"
#include "StopSignals.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>

namespace {

int inputError(const QString& message, QString* error)
{
    *error = message;
    return ExitCode::InputError;
}

/// Removes a folder the import made, unless keep is set: a failed or stopped
/// import leaves no empty folder of its own behind.
struct RemoveIfEmpty
{
    QString folder;
    bool keep;
    ~RemoveIfEmpty()
    {
        if (!keep)
            QDir().rmdir(folder);
    }
};

} // namespace

ImportOutputs::ImportOutputs(const QString& folder, const QString& name)
    : m_givenFolder(folder), m_folder(QFileInfo(folder).absoluteFilePath())
{
    const QDir dir(m_folder);
    m_project = dir.filePath(name + QStringLiteral(".pto"));
    m_description = dir.filePath(name + QStringLiteral(".json"));
    m_layout = dir.filePath(name + QStringLiteral("-layout.png"));
}

QString ImportOutputs::project() const
{
    return m_project;
}

QString ImportOutputs::description() const
{
    return m_description;
}

QString ImportOutputs::layout() const
{
    return m_layout;
}

QStringList ImportOutputs::all() const
{
    return { m_project, m_description, m_layout };
}

int ImportOutputs::check(const QStringList& inputs, bool force, QString* error) const
{
    for (const QString& output : all()) {
        for (const QString& input : inputs) {
            if (OutputFiles::sameFile(output, input)) {
                *error = QStringLiteral("the output %1 is one of the inputs (%2)")
                             .arg(QDir::toNativeSeparators(output), input);
                return ExitCode::UsageError;
            }
        }
    }
    if (!OutputFiles::checkFolder(m_givenFolder, QStringLiteral("output folder"), error))
        return ExitCode::InputError;
    const QString present = OutputFiles::existing(all(), force);
    if (!present.isEmpty())
        return inputError(OutputFiles::existsMessage(present), error);
    return ExitCode::Done;
}

int ImportOutputs::write(const ExportInput& input, bool force, QString* error) const
{
    QString projectText;
    if (!HuginProjectWriter(input).text(m_folder, &projectText, error))
        return ExitCode::InputError;
    const QByteArray projectBytes = projectText.toUtf8();
    const QByteArray descriptionBytes
        = QJsonDocument(DescriptionJson::toJson(input.panorama)).toJson(QJsonDocument::Indented);
    const QImage picture = LayoutPicture::render(input);
    if (picture.isNull())
        return inputError(QStringLiteral("the panorama has no stack to draw"), error);

    const bool folderExisted = QFileInfo(m_folder).isDir();
    if (!QDir().mkpath(m_folder))
        return inputError(
            QStringLiteral("cannot create the output folder %1").arg(m_givenFolder), error);
    RemoveIfEmpty created { m_folder, folderExisted };
    OutputFiles::FolderLock lock;
    if (!lock.lock(m_folder, error))
        return ExitCode::InputError;
    // Another run may have finished in this folder while this one read.
    const QString written = OutputFiles::existing(all(), force);
    if (!written.isEmpty())
        return inputError(OutputFiles::existsMessage(written), error);
    OutputFiles::FileSet files;
    const auto bytes = [](const QByteArray& data) {
        return [data](QIODevice* device) { return device->write(data) == data.size(); };
    };
    if (!files.add(m_project, bytes(projectBytes), error)
        || !files.add(m_description, bytes(descriptionBytes), error)
        || !files.add(
            m_layout, [&picture](QIODevice* device) { return picture.save(device, "PNG"); }, error))
        return ExitCode::InputError;
    if (StopSignals::received()) {
        files.discard();
        *error = QStringLiteral("stopped");
        return StopSignals::exitCode();
    }
    if (!files.commit(error))
        return ExitCode::InputError;
    created.keep = true;
    return ExitCode::Done;
}
