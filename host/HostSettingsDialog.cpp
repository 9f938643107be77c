#include "HostSettingsDialog.h"

#include "HostApplication.h"
#include "StitchPipeline.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

HostSettingsDialog::HostSettingsDialog(HostApplication* host, QWidget* parent)
    : QDialog(parent), m_host(host)
{
    setObjectName(QStringLiteral("HostSettingsDialog"));
    setWindowTitle(tr("Settings"));

    m_leTools = new QLineEdit(this);
    m_leTools->setObjectName(QStringLiteral("m_leTools"));
    m_leTools->setPlaceholderText(tr("found on PATH"));
    m_leTools->setText(host->ToolsFolder());
    auto* browse = new QPushButton(tr("Browse..."), this);
    browse->setObjectName(QStringLiteral("m_pbBrowseTools"));
    connect(browse, &QPushButton::clicked, this, [this] {
        const QString folder
            = QFileDialog::getExistingDirectory(this, tr("Folder of Hugin's programs"),
                m_leTools->text().isEmpty() ? QDir::homePath() : m_leTools->text(),
                m_host->UseNativeFileDialogs()
                    ? QFileDialog::ShowDirsOnly
                    : QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
        if (!folder.isEmpty())
            m_leTools->setText(folder);
    });
    connect(m_leTools, &QLineEdit::textChanged, this, &HostSettingsDialog::UpdateToolsState);
    m_lbTools = new QLabel(this);
    m_lbTools->setObjectName(QStringLiteral("m_lbTools"));
    m_lbTools->setWordWrap(true);

    m_cbLanguage = new QComboBox(this);
    m_cbLanguage->setObjectName(QStringLiteral("m_cbLanguage"));
    for (const QString& name : Languages()) {
        if (name.isEmpty()) {
            m_cbLanguage->addItem(tr("The system's"), name);
            continue;
        }
        const QLocale locale(name);
        QString native = locale.nativeLanguageName();
        if (!native.isEmpty())
            native[0] = native[0].toUpper();
        if (name.contains(QLatin1Char('_')) && name.startsWith(QLatin1String("zh")))
            native += QStringLiteral(" (%1)").arg(locale.nativeCountryName());
        m_cbLanguage->addItem(native, name);
    }
    const int current = m_cbLanguage->findData(host->Language());
    m_cbLanguage->setCurrentIndex(qMax(0, current));
    auto* languageNote = new QLabel(tr("The language applies from the next start."), this);
    languageNote->setObjectName(QStringLiteral("m_lbLanguageNote"));

    auto* tools = new QHBoxLayout;
    tools->addWidget(m_leTools, 1);
    tools->addWidget(browse);
    auto* form = new QFormLayout;
    form->addRow(tr("Hugin's programs:"), tools);
    form->addRow(QString(), m_lbTools);
    form->addRow(tr("Language:"), m_cbLanguage);
    form->addRow(QString(), languageNote);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(box, &QDialogButtonBox::accepted, this, &HostSettingsDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &HostSettingsDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(box);
    UpdateToolsState();
    resize(560, sizeHint().height());
}

QStringList HostSettingsDialog::Languages()
{
    return { QString(), QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("es"),
        QStringLiteral("fr"), QStringLiteral("it"), QStringLiteral("pl"), QStringLiteral("ru"),
        QStringLiteral("ja"), QStringLiteral("zh_CN"), QStringLiteral("zh_TW") };
}

QStringList HostSettingsDialog::MissingPrograms(const QString& folder)
{
    QStringList missing;
    const QStringList paths = folder.isEmpty() ? QStringList() : QStringList { folder };
    for (const QString& program : StitchPipeline::programs()) {
        if (QStandardPaths::findExecutable(program, paths).isEmpty())
            missing << program;
    }
    return missing;
}

QString HostSettingsDialog::PackageOf(const QString& program)
{
    if (program == QLatin1String("enblend") || program == QLatin1String("enfuse"))
        return program;
    return QStringLiteral("hugin-tools");
}

QString HostSettingsDialog::MissingProgramsText(const QString& folder)
{
    const QStringList missing = MissingPrograms(folder);
    if (missing.isEmpty())
        return QString();
    QStringList packages;
    for (const QString& program : missing) {
        if (!packages.contains(PackageOf(program)))
            packages << PackageOf(program);
    }
    const QString where
        = folder.isEmpty() ? tr("on PATH") : tr("in %1").arg(QDir::toNativeSeparators(folder));
    return tr("Not found %2: %1. On Debian and Ubuntu, Hugin's programs come with the "
              "packages %3 (sudo apt install %3).")
        .arg(missing.join(QStringLiteral(", ")), where, packages.join(QLatin1Char(' ')));
}

void HostSettingsDialog::UpdateToolsState()
{
    const QString text = MissingProgramsText(m_leTools->text().trimmed());
    m_lbTools->setText(text.isEmpty() ? tr("Every program the stitch needs is found.") : text);
}

void HostSettingsDialog::accept()
{
    m_host->SetToolsFolder(m_leTools->text().trimmed());
    m_host->SetLanguage(m_cbLanguage->currentData().toString());
    QDialog::accept();
}
