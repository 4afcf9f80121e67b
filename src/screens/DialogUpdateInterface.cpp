// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/DialogUpdateInterface.h"

#include "screens/ReleaseNotesView.h"
#include "screens/Symbols.h"
#include "screens/Theme.h"
#include "services/Appcast.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace {

// The result code of the update offer that stands for `choice`; never 0, the code of a dialog
// closed without an answer.
int choiceResult(UpdateUserInterface::Choice choice)
{
    return QDialog::Accepted + 1 + int(choice);
}

// Progress in thousandths: byte counts do not fit the dialog's int range for large files.
constexpr int progressSteps = 1000;

QLabel *wrappedLabel(const QString &text, QWidget *parent = nullptr)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

DialogUpdateInterface::DialogUpdateInterface(QWidget *dialogParent)
    : m_dialogParent(dialogParent)
{
}

DialogUpdateInterface::~DialogUpdateInterface()
{
    if (m_progress) {
        m_progress->disconnect();
        delete m_progress;
    }
}

QString DialogUpdateInterface::updateName(const AppcastItem &update) const
{
    const QString name = m_applicationName.isEmpty() ? QStringLiteral("Vantle") : m_applicationName;
    return QStringLiteral("%1 %2").arg(
        name, update.displayVersion.isEmpty() ? update.version : update.displayVersion);
}

void DialogUpdateInterface::showUpToDate(const QString &name, const QString &version)
{
    auto *box = new QMessageBox(QMessageBox::Information, QObject::tr("Software Update"),
        QObject::tr("You're up to date!"), QMessageBox::NoButton, m_dialogParent);
    box->setInformativeText(QObject::tr("%1 %2 is the latest version.").arg(name, version));
    box->addButton(QObject::tr("OK"), QMessageBox::AcceptRole);
    m_dialogs.open(box);
}

void DialogUpdateInterface::askAboutUpdate(const AppcastItem &update, const QString &name,
    const QString &currentVersion, std::function<void(Choice)> onChoice)
{
    m_applicationName = name;
    const QString offered = update.displayVersion.isEmpty() ? update.version : update.displayVersion;

    auto *dialog = new QDialog(m_dialogParent);
    dialog->setWindowTitle(QObject::tr("Software Update"));
    dialog->resize(560, 420);
    auto *layout = new QHBoxLayout(dialog);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);

    auto *symbol = new QLabel;
    symbol->setPixmap(Symbols::pixmap(
        QStringLiteral("eyedropper"), 48, Theme::accent(dialog->palette()), dialog->devicePixelRatioF()));
    symbol->setFixedSize(48, 48);
    layout->addWidget(symbol, 0, Qt::AlignTop);

    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    layout->addLayout(column, 1);
    QLabel *heading = wrappedLabel(QObject::tr("A new version of %1 is available!").arg(name));
    heading->setFont(Theme::withPixelSize(heading->font(), 15, true));
    column->addWidget(heading);
    column->addWidget(
        wrappedLabel(QObject::tr("%1 %2 is now available — you have %3. Would you like to download it now?")
                         .arg(name, offered, currentVersion)));

    if (!update.releaseNotes.trimmed().isEmpty()) {
        QLabel *notesHeading = wrappedLabel(QObject::tr("Release Notes:"));
        notesHeading->setFont(Theme::withPixelSize(notesHeading->font(), 13, true));
        column->addSpacing(4);
        column->addWidget(notesHeading);
        auto *notes = new ReleaseNotesView;
        notes->setNotes(update.releaseNotes);
        column->addWidget(notes, 1);
    } else if (update.releaseNotesLink.isValid()) {
        // Notes kept on the web are opened in the browser, never fetched by the program.
        auto *link = new QLabel;
        link->setTextFormat(Qt::RichText);
        link->setText(QStringLiteral("<a href=\"%1\">%2</a>")
                          .arg(update.releaseNotesLink.toString(QUrl::FullyEncoded).toHtmlEscaped(),
                              QObject::tr("Read the release notes").toHtmlEscaped()));
        const QUrl url = update.releaseNotesLink;
        QObject::connect(link, &QLabel::linkActivated, link, [url] { QDesktopServices::openUrl(url); });
        column->addWidget(link);
        column->addStretch(1);
    } else {
        column->addStretch(1);
    }

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    auto *skip = new QPushButton(QObject::tr("Skip This Version"));
    auto *later = new QPushButton(QObject::tr("Remind Me Later"));
    auto *download = new QPushButton(QObject::tr("Download"));
    download->setDefault(true);
    buttons->addWidget(skip);
    buttons->addStretch(1);
    buttons->addWidget(later);
    buttons->addWidget(download);
    column->addSpacing(8);
    column->addLayout(buttons);

    // The result code is the button's choice; closing the dialog any other way (Escape, the
    // window's close button) rejects it, which means "not now".
    const auto answerWith = [dialog](QPushButton *button, Choice choice) {
        QObject::connect(
            button, &QPushButton::clicked, dialog, [dialog, choice] { dialog->done(choiceResult(choice)); });
    };
    answerWith(skip, Choice::skipThisVersion);
    answerWith(later, Choice::remindLater);
    answerWith(download, Choice::download);
    QObject::connect(dialog, &QDialog::finished, dialog, [onChoice = std::move(onChoice)](int result) {
        for (const Choice choice : { Choice::download, Choice::skipThisVersion }) {
            if (result == choiceResult(choice))
                return onChoice(choice);
        }
        onChoice(Choice::remindLater);
    });
    download->setFocus();
    m_dialogs.open(dialog);
}

void DialogUpdateInterface::downloadStarted(const AppcastItem &update, std::function<void()> onCancel)
{
    downloadEnded();
    m_progress = new QProgressDialog(
        QObject::tr("Downloading %1…").arg(updateName(update)), QObject::tr("Cancel"), 0, 0, m_dialogParent);
    m_progress->setWindowTitle(QObject::tr("Software Update"));
    m_progress->setAutoClose(false);
    m_progress->setAutoReset(false);
    m_progress->setMinimumDuration(0);
    m_progress->setMinimumWidth(360);
    m_progress->setWindowModality(Qt::NonModal);
    QObject::connect(
        m_progress, &QProgressDialog::canceled, m_progress, [this, onCancel = std::move(onCancel)] {
            // The updater answers with downloadEnded(), which closes the dialog.
            if (m_progress)
                m_progress->disconnect();
            if (onCancel)
                onCancel();
        });
    m_progress->show();
}

void DialogUpdateInterface::downloadProgressed(qint64 received, qint64 total)
{
    if (!m_progress)
        return;
    if (total <= 0) {
        // Unknown size: a busy indicator.
        m_progress->setRange(0, 0);
        return;
    }
    m_progress->setRange(0, progressSteps);
    m_progress->setValue(int(qBound(qint64(0), received * progressSteps / total, qint64(progressSteps))));
}

void DialogUpdateInterface::downloadEnded()
{
    if (!m_progress)
        return;
    m_progress->disconnect();
    m_progress->hide();
    // Later: this may run inside the dialog's own Cancel handling.
    m_progress->deleteLater();
    m_progress = nullptr;
}

void DialogUpdateInterface::showDownloadFailed(const QString &message)
{
    auto *box = new QMessageBox(QMessageBox::Warning, QObject::tr("Software Update"),
        QObject::tr("Update Failed"), QMessageBox::NoButton, m_dialogParent);
    box->setInformativeText(message);
    box->addButton(QObject::tr("OK"), QMessageBox::AcceptRole);
    m_dialogs.open(box);
}

void DialogUpdateInterface::showDownloadReady(
    const AppcastItem &update, const QString &filePath, bool automatic)
{
    // Not modal: an update fetched in the background must not block whatever the user is doing.
    auto *box = new QMessageBox(QMessageBox::Information, QObject::tr("Software Update"),
        automatic ? QObject::tr("%1 was downloaded in the background.").arg(updateName(update))
                  : QObject::tr("%1 has been downloaded.").arg(updateName(update)),
        QMessageBox::NoButton, m_dialogParent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(
        QObject::tr("The file is saved as %1. Install it the way you installed this version.")
            .arg(QDir::toNativeSeparators(filePath)));
    QPushButton *show = box->addButton(QObject::tr("Show in Folder"), QMessageBox::AcceptRole);
    box->addButton(QObject::tr("Close"), QMessageBox::RejectRole);
    box->setDefaultButton(show);
    QObject::connect(box, &QMessageBox::buttonClicked, box, [show, filePath](QAbstractButton *button) {
        if (button == show)
            showInFileManager(filePath);
    });
    box->show();
}

void DialogUpdateInterface::showInFileManager(const QString &filePath)
{
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(filePath).absolutePath());
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"), QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("ShowItems"));
    call << QStringList { QUrl::fromLocalFile(filePath).toString(QUrl::FullyEncoded) } << QString();
    // Asynchronous: a file manager started by activation may take its time, and the program
    // must not wait for it.
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, watcher, [folder](QDBusPendingCallWatcher *done) {
            if (done->isError())
                QDesktopServices::openUrl(folder);
            done->deleteLater();
        });
}
