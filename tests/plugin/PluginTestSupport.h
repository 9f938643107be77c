// What the plug-in suites share: where the built library is, the main
// function that runs a suite under the test host, and small helpers.
#pragma once

#include "PluginTestHost.h"
#include "ZIAbout.h"
#include "ZIPluginImport.h"
#include "ZIPluginLibrary.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTest>

/// The plug-in library of this build, as a host would load it.
inline QString PluginFile()
{
    return QStringLiteral(ZPH_PLUGIN_FILE);
}

inline PluginTestHost* Host()
{
    return static_cast<PluginTestHost*>(QCoreApplication::instance());
}

/// The class names of `objects`, "null" for a null pointer.
inline QStringList ClassNames(const QList<QPointer<QObject>>& objects)
{
    QStringList names;
    for (const QPointer<QObject>& object : objects)
        names.append(object ? QString::fromLatin1(object->metaObject()->className())
                            : QStringLiteral("null"));
    return names;
}

inline ZIPluginLibrary::APX Apx(int value)
{
    return static_cast<ZIPluginLibrary::APX>(value);
}

#define ZPH_PLUGIN_TEST_MAIN(TestClass)                                                            \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        PluginTestHost app(argc, argv);                                                            \
        app.setAttribute(Qt::AA_Use96Dpi, true);                                                   \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
