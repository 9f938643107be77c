#include "PluginTestHost.h"

#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

PluginTestHost::PluginTestHost(int& argc, char** argv)
    : RecordingHost(argc, argv), m_locale(QLocale::English, QLocale::UnitedStates)
{
}

PluginTestHost::~PluginTestHost()
{
    RemoveTranslation();
    qDeleteAll(m_imageDefs);
}

void PluginTestHost::SetDefaultFolder(const QString& path)
{
    RecordingHost::SetDefaultFolder(path);
    SetFolder(QFileInfo(path).absolutePath());
}

QVariant PluginTestHost::GetSetting(
    const QString& section, const QString& key, const QVariant& defaultValue)
{
    m_gets.append({ section, key, defaultValue });
    m_events.append(QStringLiteral("get:") + key);
    return m_settings.value(qMakePair(section, key), defaultValue);
}

void PluginTestHost::SetSetting(const QString& section, const QString& key, const QVariant& value)
{
    m_sets.append({ section, key, value });
    m_events.append(QStringLiteral("set:") + key);
    m_settings.insert(qMakePair(section, key), value);
}

QLocale PluginTestHost::Locale()
{
    return m_locale;
}

void PluginTestHost::LoadTranslation(const QString& fileName)
{
    m_translationRequests.append(fileName);
    RemoveTranslation();
    // "ZPanoHead_de_DE.qm", then "ZPanoHead_de.qm".
    QString base = fileName;
    if (base.endsWith(QLatin1String(".qm")))
        base.chop(3);
    for (;;) {
        const QString path = QStringLiteral(":/Translation/%1.qm").arg(base);
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) {
            m_translationData = file.readAll();
            auto translator = std::make_unique<QTranslator>();
            if (translator->load(reinterpret_cast<const uchar*>(m_translationData.constData()),
                    m_translationData.size())) {
                installTranslator(translator.get());
                m_translator = std::move(translator);
                m_installedTranslation = path;
            }
            return;
        }
        const int cut = base.lastIndexOf(QLatin1Char('_'));
        if (cut <= base.indexOf(QLatin1Char('_')))
            return;
        base.truncate(cut);
    }
}

ZIImageDef* PluginTestHost::CreateImageDef(const QString& path)
{
    QMutexLocker lock(&m_imagesMutex);
    const ImageValues values = m_imageValues.value(path);
    if (!values.readable)
        return nullptr;
    auto* def = new TestImageDef(values.focalLength, values.lensType, values.orderKey, 0.0f, path);
    m_imageDefs.append(def);
    return def;
}

void PluginTestHost::ImportStructuredPanorama(const StructuredPanoramaProperties& properties)
{
    RecordingHost::ImportStructuredPanorama(properties);
    m_events.append(QStringLiteral("import"));
}

void PluginTestHost::Reset()
{
    m_settings.clear();
    m_gets.clear();
    m_sets.clear();
    m_events.clear();
    m_translationRequests.clear();
    ClearCalls();
    ClearImports();
    SetSystemFileDialog(false);
    m_locale = QLocale(QLocale::English, QLocale::UnitedStates);
    RemoveTranslation();
}

void PluginTestHost::RemoveTranslation()
{
    if (m_translator) {
        removeTranslator(m_translator.get());
        m_translator.reset();
    }
    m_translationData.clear();
    m_installedTranslation.clear();
}

void PluginTestHost::SetImage(const QString& path, float focalLength, int lensType, qint64 orderKey)
{
    QMutexLocker lock(&m_imagesMutex);
    ImageValues& values = m_imageValues[path];
    values.focalLength = focalLength;
    values.lensType = lensType;
    values.orderKey = orderKey;
    values.readable = true;
}

void PluginTestHost::SetUnreadable(const QString& path)
{
    QMutexLocker lock(&m_imagesMutex);
    m_imageValues[path].readable = false;
}
