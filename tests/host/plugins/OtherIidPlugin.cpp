// A Qt plug-in with the library's root class name but another interface:
// the loader must turn it down before loading it.
#include <QObject>
#include <QtPlugin>

class Library : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.zelmo.other")
};

#include "OtherIidPlugin.moc"
