// PageTestHost: the host application of the page tests. A QApplication that
// implements ZIApplication, records every call made to it, hands out image
// definitions that the test prepares (focal length, lens type, order key,
// exposure, a plain coloured thumbnail) and keeps every record it receives.
// CreateImageDef runs on the pages' reading threads, so every member the host
// shares with it is guarded; reading can be held at a gate to look at a page
// while photos are still being read.
#pragma once

#include "StructuredPanoramaProperties.h"
#include "TestImageDef.h"
#include "ZIApplication.h"
#include "ZUIInstances.h"

#include <QApplication>
#include <QColor>
#include <QHash>
#include <QMutex>
#include <QSemaphore>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <atomic>

class PageTestHostBase : public QApplication, public ZIApplication
{
    Q_OBJECT
    Q_INTERFACES(ZIApplication)

public:
    PageTestHostBase(int& argc, char** argv);
    ~PageTestHostBase() override;

    QString DefaultFolder() override;
    void SetDefaultFolder(const QString& path) override;
    QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue) override;
    void SetSetting(const QString& section, const QString& key, const QVariant& value) override;
    QLocale Locale() override;
    void LoadTranslation(const QString& fileName) override;
    /// Reading thread: the definition the test added for `path`, or null.
    ZIImageDef* CreateImageDef(const QString& path) override;
    void ImportStructuredPanorama(const StructuredPanoramaProperties& properties) override;
    ZUIInstances* UIInstances() override;

    /// GUI thread. A definition for `path` with a 16 x 16 thumbnail of
    /// `colour` (none when invalid). The host owns it until ForgetImages.
    TestImageDef* AddImage(const QString& path, float focal, int lens, qint64 key,
        float exposure = 0.0f, const QColor& colour = QColor());
    /// Reading `path` throws, as a host may.
    void SetThrowing(const QString& path);
    /// Deletes every definition; only when no page holds any.
    void ForgetImages();

    /// What DefaultFolder() answers.
    void SetFolder(const QString& folder);
    /// Every call so far, as "Name(arguments)", in call order.
    QStringList Calls() const;
    /// The calls whose text starts with `prefix`.
    QStringList CallsStartingWith(const QString& prefix) const;
    void ClearCalls();
    QVector<StructuredPanoramaProperties> Imports() const;
    void ClearImports();

    /// From now on every CreateImageDef waits at the gate.
    void HoldReading();
    /// Lets `count` waiting or future readings through.
    void ReleaseReading(int count);
    /// Opens the gate for good.
    void StopHolding();

private:
    void Record(const QString& call);

    mutable QMutex m_mutex;
    QStringList m_calls;
    QString m_folder;
    QHash<QString, TestImageDef*> m_defs;
    QSet<QString> m_throwing;
    QVector<StructuredPanoramaProperties> m_imports;
    ZUISettings m_uiSettings;
    ZUIInstances m_uiInstances;
    QSemaphore m_gate;
    std::atomic<bool> m_holding { false };
};

/// Answers qt_metacast("ZIApplication") with null while hidden, as an
/// application without the host interface would.
class PageTestHost : public PageTestHostBase
{
public:
    using PageTestHostBase::PageTestHostBase;

    void* qt_metacast(const char* name) override;
    void SetInterfaceHidden(bool hidden) { m_hidden = hidden; }

    static PageTestHost* instance() { return static_cast<PageTestHost*>(qApp); }

private:
    std::atomic<bool> m_hidden { false };
};

/// main() of a page test: the host, the UI library initialised with the
/// host's record (Qt's own file dialogs), then the suite.
#define ZPH_PAGE_TEST_MAIN(TestObject)                                                             \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        PageTestHost app(argc, argv);                                                              \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                   \
        ZUI::init(app.UIInstances());                                                              \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
