// The recording host application of the test suites.
#include "RecordingHost.h"

#include <QMutexLocker>

RecordingHost::RecordingHost(int& argc, char** argv) : QApplication(argc, argv)
{
    m_uiSettings.useSystemFileDialog = false;
    m_uiInstances.settings = &m_uiSettings;
}

RecordingHost::~RecordingHost() = default;

void RecordingHost::Record(const QString& call)
{
    QMutexLocker lock(&m_recordMutex);
    m_calls << call;
}

QString RecordingHost::DefaultFolder()
{
    Record(QStringLiteral("DefaultFolder()"));
    QMutexLocker lock(&m_recordMutex);
    return m_folder;
}

void RecordingHost::SetDefaultFolder(const QString& path)
{
    Record(QStringLiteral("SetDefaultFolder(%1)").arg(path));
}

void RecordingHost::ImportStructuredPanorama(const StructuredPanoramaProperties& properties)
{
    Record(QStringLiteral("ImportStructuredPanorama()"));
    QMutexLocker lock(&m_recordMutex);
    m_imports << properties;
}

ZUIInstances* RecordingHost::UIInstances()
{
    Record(QStringLiteral("UIInstances()"));
    return &m_uiInstances;
}

void RecordingHost::SetFolder(const QString& folder)
{
    QMutexLocker lock(&m_recordMutex);
    m_folder = folder;
}

void RecordingHost::SetSystemFileDialog(bool system)
{
    m_uiSettings.useSystemFileDialog = system;
}

QStringList RecordingHost::Calls() const
{
    QMutexLocker lock(&m_recordMutex);
    return m_calls;
}

QStringList RecordingHost::CallsStartingWith(const QString& prefix) const
{
    QStringList calls;
    for (const QString& call : Calls()) {
        if (call.startsWith(prefix))
            calls << call;
    }
    return calls;
}

void RecordingHost::ClearCalls()
{
    QMutexLocker lock(&m_recordMutex);
    m_calls.clear();
}

QVector<StructuredPanoramaProperties> RecordingHost::Imports() const
{
    QMutexLocker lock(&m_recordMutex);
    return m_imports;
}

void RecordingHost::ClearImports()
{
    QMutexLocker lock(&m_recordMutex);
    m_imports.clear();
}
