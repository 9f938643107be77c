// PageTestHost: the host application of the page tests. A RecordingHost that
// also records the settings, locale and translation calls and hands out image
// definitions that the test prepares (focal length, lens type, order key,
// exposure, a plain coloured thumbnail). CreateImageDef runs on the pages'
// reading threads, so every member the host shares with it is guarded;
// reading can be held at a gate to look at a page while photos are still
// being read.
#pragma once

#include "RecordingHost.h"
#include "TestImageDef.h"

#include <QColor>
#include <QHash>
#include <QMutex>
#include <QSemaphore>
#include <QSet>

#include <atomic>

class PageTestHostBase : public RecordingHost
{
    Q_OBJECT

public:
    PageTestHostBase(int& argc, char** argv);
    ~PageTestHostBase() override;

    QVariant GetSetting(
        const QString& section, const QString& key, const QVariant& defaultValue) override;
    void SetSetting(const QString& section, const QString& key, const QVariant& value) override;
    QLocale Locale() override;
    void LoadTranslation(const QString& fileName) override;
    /// Reading thread: the definition the test added for `path`, or null.
    ZIImageDef* CreateImageDef(const QString& path) override;

    /// GUI thread. A definition for `path` with a 16 x 16 thumbnail of
    /// `colour` (none when invalid). The host owns it until ForgetImages.
    TestImageDef* AddImage(const QString& path, float focal, int lens, qint64 key,
        float exposure = 0.0f, const QColor& colour = QColor());
    /// Reading `path` throws, as a host may.
    void SetThrowing(const QString& path);
    /// Deletes every definition; only when no page holds any.
    void ForgetImages();

    /// From now on every CreateImageDef waits at the gate.
    void HoldReading();
    /// Lets `count` waiting or future readings through.
    void ReleaseReading(int count);
    /// Opens the gate for good.
    void StopHolding();

private:
    mutable QMutex m_mutex;
    QHash<QString, TestImageDef*> m_defs;
    QSet<QString> m_throwing;
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
