// A Qt plug-in declaring the library's interface with another root class:
// the loader must turn it down before loading it.
#include <QObject>
#include <QtPlugin>

class OtherRoot : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zelmo.panohead")
};

#include "OtherClassPlugin.moc"
