// RecordingHost: the host application object shared by the test suites. A
// QApplication that implements ZIApplication, logs every call made to it as
// "Name(arguments)", keeps every record handed over, answers DefaultFolder
// with the folder the test sets and has the UI library use Qt's own file
// dialogs, which a test can find among the windows. The log and the records
// are guarded: the pages' reading threads call the host too. Suites derive
// from it for settings, translations and image definitions.
#pragma once

#include "StructuredPanoramaProperties.h"
#include "ZIApplication.h"
#include "ZUIInstances.h"

#include <QApplication>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVector>

class RecordingHost : public QApplication, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    RecordingHost(int& argc, char** argv);
    ~RecordingHost() override;

    QString DefaultFolder() override;
    void SetDefaultFolder(const QString& path) override;
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override;
    ZUIInstances* UIInstances() override;

    /// What DefaultFolder() answers.
    void SetFolder(const QString& folder);
    /// True: the UI library is told to use the desktop's file dialogs.
    void SetSystemFileDialog(bool system);

    /// Every call so far, as "Name(arguments)", in call order. Any thread.
    QStringList Calls() const;
    /// The calls whose text starts with `prefix`.
    QStringList CallsStartingWith(const QString& prefix) const;
    void ClearCalls();
    /// Copies of the records handed over, in order.
    QVector<StructuredPanoramaProperties> Imports() const;
    void ClearImports();

protected:
    /// Appends `call` to the log. Any thread.
    void Record(const QString& call);

private:
    mutable QMutex m_recordMutex;
    QStringList m_calls;
    QString m_folder;
    QVector<StructuredPanoramaProperties> m_imports;
    ZUISettings m_uiSettings;
    ZUIInstances m_uiInstances;
};
