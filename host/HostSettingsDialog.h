// HostSettingsDialog: the host's own settings: where Hugin's programs are
// (PATH when empty) and the language of the window, which applies from the
// next start.
#pragma once

#include <QDialog>

class HostApplication;
class QComboBox;
class QLabel;
class QLineEdit;

class HostSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HostSettingsDialog(HostApplication* host, QWidget* parent = nullptr);

    /// The languages offered, as locale names ("fr_FR"), the system's ("")
    /// first.
    static QStringList Languages();

    /// Hugin's programs the stitch needs that are not found in `folder`
    /// (PATH when empty).
    static QStringList MissingPrograms(const QString& folder);
    /// The Debian package that holds `program` ("hugin-tools", "enblend",
    /// "enfuse").
    static QString PackageOf(const QString& program);
    /// For a person: which programs are missing, where, and the packages
    /// that hold them; empty when none is missing.
    static QString MissingProgramsText(const QString& folder);

    void accept() override;

private:
    void UpdateToolsState();

    HostApplication* m_host;
    QLineEdit* m_leTools = nullptr;
    QLabel* m_lbTools = nullptr;
    QComboBox* m_cbLanguage = nullptr;
};
