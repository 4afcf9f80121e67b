#include "screens/SettingsView.h"

#include "BuildInfo.h"
#include "history/ColorListViewModel.h"
#include "hotkeys/HotkeyManager.h"
#include "hotkeys/HotkeyRecorderView.h"
#include "model/ColorFormat.h"
#include "screens/Theme.h"
#include "screens/SettingsTabButton.h"
#include "screens/Symbols.h"
#include "services/LaunchAtLogin.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"
#include "services/SettingsViewModel.h"
#include "services/UpdaterController.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QEvent>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <array>

namespace {

constexpr std::array<qint64, 3> standardHistoryLimits = { 20, 50, 100 };

struct MakerApplication {
    QString name;
    QString description;
    QString address;
};

// The build's list of the maker's applications: "Name|Description|Address" entries separated by
// semicolons. Entries without a name are dropped.
QList<MakerApplication> makerApplications()
{
    QList<MakerApplication> applications;
    const QString list = QString::fromUtf8(BuildInfo::makerApps);
    for (const QString &entry : list.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList parts = entry.split(QLatin1Char('|'));
        MakerApplication application { parts.value(0).trimmed(), parts.value(1).trimmed(),
            parts.value(2).trimmed() };
        if (!application.name.isEmpty())
            applications.append(application);
    }
    return applications;
}

QLabel *textLabel(const QString &text, int pixelSize, bool bold = false, QWidget *parent = nullptr)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Theme::withPixelSize(label->font(), pixelSize, bold));
    return label;
}

// Secondary text and dividers are tinted from the window's text colour; the tone is kept as a
// property so a switch between light and dark tints them again (SettingsView::changeEvent).
const char toneProperty[] = "vantleTone";

void applyTone(QWidget *widget, const QPalette &window)
{
    const QString tone = widget->property(toneProperty).toString();
    if (tone.isEmpty())
        return;
    QColor color = window.color(QPalette::WindowText);
    color.setAlphaF(tone == QLatin1String("divider") ? 0.15 : Theme::secondaryText(window).alphaF());
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, color);
    widget->setPalette(palette);
}

template<typename Widget> Widget *secondary(Widget *widget)
{
    widget->setProperty(toneProperty, QStringLiteral("secondary"));
    applyTone(widget, widget->palette());
    return widget;
}

QLabel *secondaryLabel(const QString &text, int pixelSize, QWidget *parent = nullptr)
{
    return secondary(textLabel(text, pixelSize, false, parent));
}

// A link in the accent colour that opens `url` with the desktop's handler (browser, mail).
QLabel *linkLabel(const QString &text, const QUrl &url, int pixelSize, QWidget *parent = nullptr)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::RichText);
    label->setText(QStringLiteral("<a href=\"%1\" style=\"color:%2; text-decoration:none;\">%3</a>")
                       .arg(url.toString(QUrl::FullyEncoded).toHtmlEscaped(), Theme::accent().name(),
                           text.toHtmlEscaped()));
    label->setFont(Theme::withPixelSize(label->font(), pixelSize));
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setCursor(Qt::PointingHandCursor);
    label->setToolTip(url.toString());
    QObject::connect(label, &QLabel::linkActivated, label, [url] { QDesktopServices::openUrl(url); });
    return label;
}

QFrame *divider(int width = -1)
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setProperty(toneProperty, QStringLiteral("divider"));
    applyTone(line, line->palette());
    if (width > 0)
        line->setFixedWidth(width);
    return line;
}

QScrollArea *scrolling(QWidget *content)
{
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    // The page shows the window's background, not the scroll area's base colour.
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    return area;
}

} // namespace

SettingsView::SettingsView(SettingsStore &store, HotkeyManager &hotkeyManager, LoginItemService &loginItems,
    UpdaterController &updaterController, ColorListViewModel *viewModel, QWidget *parent)
    : QWidget(parent)
    , m_store(store)
    , m_hotkeyManager(hotkeyManager)
    , m_loginItems(loginItems)
    , m_updaterController(updaterController)
    , m_viewModel(viewModel)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTabBar());
    layout->addWidget(divider());

    m_pages = new QStackedWidget;
    m_pages->addWidget(makeGeneralPage());
    m_pages->addWidget(makeAboutPage());
    m_pages->addWidget(makeMorePage());
    layout->addWidget(m_pages, 1);

    connect(&m_store, &SettingsStore::changed, this, &SettingsView::showStoredValue);
    setSelectedTab(generalTab);
}

SettingsView::~SettingsView()
{
    // The recorders outlive this part of the object (QWidget deletes its children later) and
    // stop listening when hidden then: they must no longer call back into it.
    for (HotkeyRecorderView *recorder : { m_pickRecorder, m_popoverRecorder })
        if (recorder)
            recorder->setOnRecordingChanged({});
    // A window torn down while a recorder listens must not leave the global shortcuts released.
    m_hotkeyManager.setSuspended(false);
}

void SettingsView::setSelectedTab(int tab)
{
    m_selectedTab = tab;
    // Any id other than About's and the maker's page shows General.
    const int page = (tab == aboutTab || tab == moreTab) ? tab : generalTab;
    m_pages->setCurrentIndex(page);
    m_tabButtons.at(page)->setChecked(true);
}

QWidget *SettingsView::makeTabBar()
{
    struct TabInfo {
        int id;
        QString label;
        QString symbol;
    };
    const std::array<TabInfo, 3> tabs = { {
        { generalTab, tr("General"), QStringLiteral("gear") },
        { aboutTab, tr("About"), QStringLiteral("info.circle") },
        { moreTab, tr("More Brindlework"), QStringLiteral("square.grid.2x2") },
    } };

    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(2);
    auto *group = new QButtonGroup(bar);
    for (const TabInfo &tab : tabs) {
        auto *button = new SettingsTabButton(tab.label, tab.symbol);
        group->addButton(button, tab.id);
        layout->addWidget(button, 1);
        m_tabButtons.append(button);
        connect(button, &QAbstractButton::clicked, this, [this, id = tab.id] { setSelectedTab(id); });
    }
    return bar;
}

QWidget *SettingsView::makeGeneralPage()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(20, 10, 20, 10);
    layout->setSpacing(6);

    const auto section = [layout](const QString &title) {
        auto *box = new QGroupBox(title);
        layout->addWidget(box);
        return box;
    };
    // Compact sections, so the whole page fits the window without scrolling.
    const auto compact = [](QLayout *inner) {
        inner->setContentsMargins(10, 6, 10, 6);
        return inner;
    };
    const auto formFor = [](QGroupBox *box) {
        auto *form = new QFormLayout(box);
        form->setContentsMargins(10, 6, 10, 6);
        form->setVerticalSpacing(6);
        form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        form->setRowWrapPolicy(QFormLayout::DontWrapRows);
        return form;
    };

    // Color Format
    m_formatPicker = new QComboBox;
    m_formatPicker->setAccessibleName(tr("Default format"));
    for (const ColorFormat format : allColorFormats)
        m_formatPicker->addItem(rawValue(format));
    connect(m_formatPicker, &QComboBox::activated, this, [this](int index) {
        if (index >= 0 && index < int(allColorFormats.size()))
            m_store.setString(PreferenceKeys::colorFormat, rawValue(allColorFormats[size_t(index)]));
    });
    formFor(section(tr("Color Format")))->addRow(tr("Default format"), m_formatPicker);

    // Keyboard Shortcuts: a new shortcut takes effect by registering both again; while one is
    // being recorded the manager lets go of its grabs so the press reaches the recorder.
    const auto reregister = [this] { m_hotkeyManager.reregisterAll(); };
    const auto suspend = [this](bool isRecording) { m_hotkeyManager.setSuspended(isRecording); };
    const auto clearIcon = [](const QColor &color) {
        return Symbols::icon(QStringLiteral("xmark.circle.fill"), 14, color);
    };
    m_pickRecorder = new HotkeyRecorderView(tr("Pick color"), m_store, PreferenceKeys::pickKeyCode,
        PreferenceKeys::pickModifiers, PreferenceKeys::pickKeyChar, reregister, clearIcon);
    m_pickRecorder->setOnRecordingChanged(suspend);
    m_popoverRecorder = new HotkeyRecorderView(tr("Toggle popover"), m_store, PreferenceKeys::popoverKeyCode,
        PreferenceKeys::popoverModifiers, PreferenceKeys::popoverKeyChar, reregister, clearIcon);
    m_popoverRecorder->setOnRecordingChanged(suspend);
    // The clear button keeps its place while hidden, so both fields end at the same edge.
    for (HotkeyRecorderView *recorder : { m_pickRecorder, m_popoverRecorder }) {
        QSizePolicy policy = recorder->clearButton()->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        recorder->clearButton()->setSizePolicy(policy);
    }
    auto *shortcuts = compact(new QVBoxLayout(section(tr("Keyboard Shortcuts"))));
    shortcuts->addWidget(m_pickRecorder);
    shortcuts->addWidget(m_popoverRecorder);

    // Menu Bar
    m_colorDotToggle = new QCheckBox(tr("Show colored dot for last picked color"));
    connect(m_colorDotToggle, &QCheckBox::clicked, this,
        [this](bool on) { m_store.setBool(PreferenceKeys::showColorDot, on); });
    compact(new QVBoxLayout(section(tr("Menu Bar"))))->addWidget(m_colorDotToggle);

    // General: the preference is written first, then the login item follows; a refused change
    // rewrites the preference to the real state, and the toggle follows the store.
    m_launchAtLoginToggle = new QCheckBox(tr("Launch at login"));
    connect(m_launchAtLoginToggle, &QCheckBox::clicked, this, [this](bool on) {
        m_store.setBool(PreferenceKeys::launchAtLogin, on);
        LaunchAtLogin::applyLaunchAtLogin(m_store, m_loginItems, on);
    });
    compact(new QVBoxLayout(section(tr("General"))))->addWidget(m_launchAtLoginToggle);

    // Data
    m_historyLimitPicker = new QComboBox;
    m_historyLimitPicker->setAccessibleName(tr("History limit"));
    connect(m_historyLimitPicker, &QComboBox::activated, this,
        [this](int index) { requestHistoryLimit(m_historyLimitPicker->itemData(index).toLongLong()); });
    m_clearHistoryButton = new QPushButton(tr("Clear History"));
    QPalette red = m_clearHistoryButton->palette();
    red.setColor(QPalette::ButtonText, Theme::destructive());
    m_clearHistoryButton->setPalette(red);
    connect(m_clearHistoryButton, &QPushButton::clicked, this, [this] {
        if (m_viewModel)
            m_viewModel->clearHistory();
    });
    QLabel *caption = secondaryLabel(tr("Pinned colors will be preserved."), 11);
    QFormLayout *data = formFor(section(tr("Data")));
    data->addRow(tr("History limit"), m_historyLimitPicker);
    data->addRow(m_clearHistoryButton);
    data->addRow(caption);
    data->setAlignment(m_clearHistoryButton, Qt::AlignLeft);

    layout->addStretch(1);

    for (const QString &key : { PreferenceKeys::colorFormat, PreferenceKeys::showColorDot,
             PreferenceKeys::launchAtLogin, PreferenceKeys::historyLimit })
        showStoredValue(key);
    return scrolling(content);
}

QWidget *SettingsView::makeAboutPage()
{
    auto *column = new QWidget;
    column->setFixedWidth(340);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    const auto add = [layout](QWidget *widget) { layout->addWidget(widget, 0, Qt::AlignHCenter); };

    auto *symbol = new QLabel;
    symbol->setPixmap(
        Symbols::pixmap(QStringLiteral("eyedropper"), 48, Theme::accent(), devicePixelRatioF()));
    symbol->setFixedSize(48, 48);
    add(symbol);
    add(textLabel(tr("vantle"), 20, true));
    add(secondaryLabel(tr("Version %1").arg(QString::fromUtf8(BuildInfo::version)), 13));
    QLabel *tagline = secondaryLabel(tr("Pick any color from anywhere on your screen with one click."), 13);
    tagline->setWordWrap(true);
    tagline->setAlignment(Qt::AlignHCenter);
    layout->addWidget(tagline);
    add(divider(200));

    // Update controls
    auto *updates = new QWidget;
    auto *updatesLayout = new QVBoxLayout(updates);
    updatesLayout->setContentsMargins(0, 0, 0, 0);
    updatesLayout->setSpacing(8);
    m_checkForUpdatesButton = new QPushButton(tr("Check for Updates…"));
    m_checkForUpdatesButton->setEnabled(m_updaterController.canCheckForUpdates());
    connect(m_checkForUpdatesButton, &QPushButton::clicked, this,
        [this] { m_updaterController.checkForUpdates(); });
    connect(&m_updaterController, &UpdaterController::canCheckForUpdatesChanged, m_checkForUpdatesButton,
        &QWidget::setEnabled);
    m_automaticDownloadToggle = new QCheckBox(tr("Automatically download updates"));
    m_automaticDownloadToggle->setFont(Theme::withPixelSize(m_automaticDownloadToggle->font(), 13));
    secondary(m_automaticDownloadToggle);
    m_automaticDownloadToggle->setChecked(m_updaterController.automaticallyDownloadsUpdates());
    connect(m_automaticDownloadToggle, &QCheckBox::clicked, this,
        [this](bool on) { m_updaterController.setAutomaticallyDownloadsUpdates(on); });
    connect(&m_updaterController, &UpdaterController::automaticallyDownloadsUpdatesChanged,
        m_automaticDownloadToggle, &QCheckBox::setChecked);
    updatesLayout->addWidget(m_checkForUpdatesButton, 0, Qt::AlignHCenter);
    updatesLayout->addWidget(m_automaticDownloadToggle, 0, Qt::AlignHCenter);
    add(updates);
    add(divider(200));

    // Links: an address the build does not carry shows no link at all.
    const QString makerName = QString::fromUtf8(BuildInfo::makerName);
    const QString website = QString::fromUtf8(BuildInfo::websiteUrl);
    if (!website.isEmpty())
        add(linkLabel(tr("Vantle Website"), QUrl(website), 13));
    auto *maker = new QWidget;
    auto *makerLayout = new QVBoxLayout(maker);
    makerLayout->setContentsMargins(0, 0, 0, 0);
    makerLayout->setSpacing(4);
    const QString makerUrl = QString::fromUtf8(BuildInfo::makerUrl);
    if (!makerUrl.isEmpty())
        makerLayout->addWidget(
            linkLabel(tr("%1 Website").arg(makerName), QUrl(makerUrl), 12), 0, Qt::AlignHCenter);
    const QString support = QString::fromUtf8(BuildInfo::supportEmail);
    if (!support.isEmpty()) {
        makerLayout->addWidget(
            linkLabel(support, QUrl(QStringLiteral("mailto:") + support), 12), 0, Qt::AlignHCenter);
    }
    if (!makerName.isEmpty())
        makerLayout->addWidget(secondaryLabel(tr("Made by %1.").arg(makerName), 11), 0, Qt::AlignHCenter);
    add(maker);

    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->setContentsMargins(32, 24, 32, 24);
    pageLayout->addStretch(1);
    pageLayout->addWidget(column, 0, Qt::AlignHCenter);
    pageLayout->addStretch(1);
    return scrolling(page);
}

QWidget *SettingsView::makeMorePage()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    const QString makerName = QString::fromUtf8(BuildInfo::makerName);

    const QList<MakerApplication> applications = makerApplications();
    for (const MakerApplication &application : applications) {
        auto *row = new QFrame;
        row->setFrameShape(QFrame::StyledPanel);
        auto *rowLayout = new QVBoxLayout(row);
        rowLayout->setSpacing(4);
        rowLayout->addWidget(textLabel(application.name, 14, true));
        if (!application.description.isEmpty()) {
            QLabel *description = secondaryLabel(application.description, 12);
            description->setWordWrap(true);
            rowLayout->addWidget(description);
        }
        const QUrl address(application.address);
        if (address.isValid() && !address.isEmpty())
            rowLayout->addWidget(linkLabel(tr("Learn More"), address, 12));
        layout->addWidget(row);
    }
    if (applications.isEmpty()) {
        layout->addStretch(1);
        QLabel *none
            = secondaryLabel(tr("No other %1 applications are listed in this build.").arg(makerName), 13);
        none->setWordWrap(true);
        none->setAlignment(Qt::AlignHCenter);
        layout->addWidget(none);
    }
    const QString makerUrl = QString::fromUtf8(BuildInfo::makerUrl);
    if (!makerUrl.isEmpty())
        layout->addWidget(
            linkLabel(tr("All %1 applications").arg(makerName), QUrl(makerUrl), 13), 0, Qt::AlignHCenter);
    layout->addStretch(1);

    QScrollArea *area = scrolling(content);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    return area;
}

void SettingsView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The login item wins here: the toggle shows whether the program really starts at login.
    LaunchAtLogin::refreshLaunchAtLogin(m_store, m_loginItems);
}

void SettingsView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // The desktop switched between light and dark: the tinted texts follow.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
        const QPalette window = palette();
        for (QWidget *widget : findChildren<QWidget *>())
            applyTone(widget, window);
    }
}

void SettingsView::showStoredValue(const QString &key)
{
    if (key == PreferenceKeys::colorFormat) {
        const ColorFormat format = SettingsViewModel::currentFormat(m_store);
        m_formatPicker->setCurrentIndex(
            int(std::find(allColorFormats.begin(), allColorFormats.end(), format) - allColorFormats.begin()));
    } else if (key == PreferenceKeys::showColorDot) {
        m_colorDotToggle->setChecked(m_store.boolForKey(key));
    } else if (key == PreferenceKeys::launchAtLogin) {
        m_launchAtLoginToggle->setChecked(m_store.boolForKey(key));
    } else if (key == PreferenceKeys::historyLimit) {
        showHistoryLimit();
    }
}

void SettingsView::showHistoryLimit()
{
    // The three standard limits, plus the stored one in its place when it is none of them
    // (written by hand or by an older version), so the picker never shows a wrong value.
    const qint64 stored = m_store.integerForKey(PreferenceKeys::historyLimit);
    QList<qint64> limits(standardHistoryLimits.begin(), standardHistoryLimits.end());
    if (!limits.contains(stored)) {
        limits.append(stored);
        std::sort(limits.begin(), limits.end());
    }
    m_historyLimitPicker->clear();
    for (const qint64 limit : limits)
        m_historyLimitPicker->addItem(QString::number(limit), limit);
    m_historyLimitPicker->setCurrentIndex(int(limits.indexOf(stored)));
}

void SettingsView::requestHistoryLimit(qint64 limit)
{
    const qint64 count = m_viewModel ? m_viewModel->recentColors().size() : 0;
    if (limit >= count) {
        m_store.setInteger(PreferenceKeys::historyLimit, limit);
        return;
    }
    m_colorsToRemoveCount = count - limit;
    m_pendingHistoryLimit = limit;
    // Until Continue the limit is the stored one, and so is what the picker behind the alert
    // shows (the person's choice has already moved it).
    showHistoryLimit();

    QMessageBox alert(this);
    alert.setIcon(QMessageBox::Warning);
    alert.setWindowTitle(tr("Reduce History"));
    alert.setText(tr("Reduce History"));
    alert.setInformativeText(m_colorsToRemoveCount == 1
            ? tr("This will remove the oldest 1 color.")
            : tr("This will remove the oldest %1 colors.").arg(QString::number(m_colorsToRemoveCount)));
    QPushButton *continueButton = alert.addButton(tr("Continue"), QMessageBox::DestructiveRole);
    QPushButton *cancelButton = alert.addButton(tr("Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(cancelButton);
    alert.setEscapeButton(cancelButton);
    alert.exec();

    if (alert.clickedButton() == continueButton)
        confirmHistoryReduction();
    // Cancel, Escape or closing the box: the limit stays as it was.
    m_pendingHistoryLimit.reset();
    m_colorsToRemoveCount = 0;
    showHistoryLimit();
}

void SettingsView::confirmHistoryReduction()
{
    if (!m_pendingHistoryLimit)
        return;
    const qint64 limit = *m_pendingHistoryLimit;
    m_pendingHistoryLimit.reset();
    m_store.setInteger(PreferenceKeys::historyLimit, limit);
    if (m_viewModel)
        m_viewModel->trimHistory(limit);
}
