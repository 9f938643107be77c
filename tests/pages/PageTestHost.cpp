// The page tests' host application.
#include "PageTestHost.h"

#include <QMutexLocker>
#include <QPixmap>

#include <cstring>
#include <stdexcept>

PageTestHostBase::PageTestHostBase(int& argc, char** argv) : RecordingHost(argc, argv) {}

PageTestHostBase::~PageTestHostBase()
{
    StopHolding();
    ForgetImages();
}

QVariant PageTestHostBase::GetSetting(
    const QString& section, const QString& key, const QVariant& defaultValue)
{
    Record(QStringLiteral("GetSetting(%1,%2)").arg(section, key));
    return defaultValue;
}

void PageTestHostBase::SetSetting(const QString& section, const QString& key, const QVariant&)
{
    Record(QStringLiteral("SetSetting(%1,%2)").arg(section, key));
}

QLocale PageTestHostBase::Locale()
{
    Record(QStringLiteral("Locale()"));
    return QLocale::c();
}

void PageTestHostBase::LoadTranslation(const QString& fileName)
{
    Record(QStringLiteral("LoadTranslation(%1)").arg(fileName));
}

ZIImageDef* PageTestHostBase::CreateImageDef(const QString& path)
{
    Record(QStringLiteral("CreateImageDef(%1)").arg(path));
    if (m_holding)
        m_gate.acquire();
    QMutexLocker lock(&m_mutex);
    if (m_throwing.contains(path))
        throw std::runtime_error("unreadable photograph");
    return m_defs.value(path, nullptr);
}

TestImageDef* PageTestHostBase::AddImage(
    const QString& path, float focal, int lens, qint64 key, float exposure, const QColor& colour)
{
    auto* def = new TestImageDef(focal, lens, key, exposure, path);
    if (colour.isValid()) {
        def->m_thumbnail = QPixmap(16, 16);
        def->m_thumbnail.fill(colour);
    }
    QMutexLocker lock(&m_mutex);
    delete m_defs.value(path, nullptr);
    m_defs.insert(path, def);
    return def;
}

void PageTestHostBase::SetThrowing(const QString& path)
{
    QMutexLocker lock(&m_mutex);
    m_throwing.insert(path);
}

void PageTestHostBase::ForgetImages()
{
    QMutexLocker lock(&m_mutex);
    qDeleteAll(m_defs);
    m_defs.clear();
    m_throwing.clear();
}

void PageTestHostBase::HoldReading()
{
    // Permits left by an earlier StopHolding would let readings through.
    m_gate.tryAcquire(m_gate.available());
    m_holding = true;
}

void PageTestHostBase::ReleaseReading(int count)
{
    m_gate.release(count);
}

void PageTestHostBase::StopHolding()
{
    m_holding = false;
    // Enough for every reading that may still wait.
    m_gate.release(1000);
}

void* PageTestHost::qt_metacast(const char* name)
{
    if (m_hidden && name && std::strcmp(name, "ZIApplication") == 0)
        return nullptr;
    return PageTestHostBase::qt_metacast(name);
}
