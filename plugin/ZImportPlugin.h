// ZImportPlugin: the shape shared by the four import plug-ins. A plug-in
// describes itself (ZIAbout), owns the one wizard page that does its import
// and hands it to the host (ZIPluginImport), and keeps the page's state in
// the host's settings from one run of the host to the next: restored once at
// construction, saved once at destruction (section: the UID, key: the class
// name).
//
// Each concrete class derives from one instantiation with its page class and
// descriptor, adds Q_OBJECT and declares both interfaces, so that qt_metacast
// answers its class name, "ZIPluginImport" and "ZIAbout".
#pragma once

#include "ZIAbout.h"
#include "ZIPluginImport.h"
#include "ZImportDescriptor.h"
#include "ZPanoHeadAbout.h"
#include "ZPluginLog.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWizardPage>

template<class Page, const ZImportDescriptor& D>
class ZImportPlugin : public QObject, public ZIPluginImport, public ZIAbout
{
public:
    /// Makes the page (no parent) and, when there is a host, gives it the
    /// state saved by an earlier run (an empty array on the first run).
    explicit ZImportPlugin(QObject* parent) : QObject(parent)
    {
        setObjectName(QLatin1String(D.objectName));
        m_page = new Page(nullptr);
        if (ZIApplication* app = ZPanoHeadAbout::HostApplication()) {
            const QVariant saved = app->GetSetting(Section(), Key(), QVariant());
            m_page->RestoreState(saved.toByteArray());
        }
    }

    /// Saves the page's state through the host, then deletes the page. The
    /// page must still exist: the host must not delete the pages it received.
    /// If it did, an empty state (what every page saves) is stored and the
    /// broken contract is logged.
    ~ZImportPlugin() override
    {
        if (ZIApplication* app = ZPanoHeadAbout::HostApplication()) {
            QByteArray state;
            if (m_page) {
                state = m_page->SaveState();
            } else {
                qCWarning(lcZPanoHeadPlugin).noquote()
                    << D.objectName << "lost its wizard page before it was destroyed;"
                    << "the host must not delete the pages it receives";
            }
            app->SetSetting(Section(), Key(), QVariant(state));
        }
        delete m_page.data();
    }

    ZImportPlugin(const ZImportPlugin&) = delete;
    ZImportPlugin& operator=(const ZImportPlugin&) = delete;

    /// Always one element: the page made by the constructor, or null once it
    /// has been destroyed. Never makes a page.
    QList<QWizardPage*> WizardPages() override
    {
        QList<QWizardPage*> pages;
        pages.append(m_page.data());
        return pages;
    }

    QString Name() const override { return QString::fromLatin1(D.name); }
    QString Author() const override { return QString::fromLatin1(ZPanoHeadAbout::kAuthor); }
    QString Company() const override { return QString::fromLatin1(ZPanoHeadAbout::kCompany); }
    /// Translated in the context of the plug-in's class.
    QString Comment() const override
    {
        return QCoreApplication::translate(metaObject()->className(), D.comment);
    }
    QString Version() const override { return QString::fromLatin1(ZPanoHeadAbout::kVersion); }
    QIcon Icon() const override
    {
        const QString path = QString::fromLatin1(D.icon);
        return QIcon(D.iconHasUidArg ? path.arg(UID()) : path);
    }
    QString UID() const override { return QString::fromLatin1(D.uid); }

private:
    static QString Section() { return QString::fromLatin1(D.uid); }
    static QString Key() { return QString::fromLatin1(D.objectName); }

    QPointer<Page> m_page;
};
