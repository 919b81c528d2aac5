#include "orn/application_log.h"

#include "orn/log_report.h"
#include "orn/message_box.h"
#include "orn/network_report.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QGridLayout>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTextCursor>
#include <QTextEdit>

#include <iostream>

namespace orn {

namespace {

application_log* first_log = nullptr;

// The standard streams exist once per process, so only one log may tap them, even
// if a program makes a second log by mistake.
bool streams_taken = false;

void scroll_to_end(QTextEdit* view)
{
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
}

} // namespace

application_log::application_log(QObject* parent)
    : QObject(parent),
      window(new QWidget),
      filter(new QLineEdit(window)),
      save_button(new QPushButton(QIcon::fromTheme(QStringLiteral("document-save")),
                                  tr("Save to disk"), window)),
      clear_button(new QPushButton(QIcon::fromTheme(QStringLiteral("edit-delete")), tr("Clear log"),
                                   window)),
      network_button(new QPushButton(tr("Network report"), window)),
      tabs(new QTabWidget(window)),
      drain_timer(this)
{
    if (first_log == nullptr) {
        first_log = this;
    }

    window->resize(800, 300);
    window->setWindowTitle(tr("Application Log"));
    // The log is a side window: closing it, even as the last one, must not end the program.
    window->setAttribute(Qt::WA_QuitOnClose, false);
    filter->setPlaceholderText(QStringLiteral("Filter..."));
    filter->setClearButtonEnabled(true);
    tabs->setTabBarAutoHide(true);
    drain_timer.setInterval(100);
    channel(QCoreApplication::applicationName());

    auto* grid = new QGridLayout(window);
    grid->addWidget(filter, 0, 0);
    grid->addWidget(save_button, 0, 2);
    grid->addWidget(clear_button, 0, 3);
    grid->addWidget(network_button, 0, 4);
    grid->addWidget(tabs, 1, 0, 1, 5);

    connect(&drain_timer, &QTimer::timeout, this, &application_log::drain);
    connect(filter, &QLineEdit::textChanged, this, [this] {
        if (log_channel* current = channel_at(tabs->currentIndex())) {
            show_filtered(*current);
        }
    });
    connect(filter, &QLineEdit::returnPressed, this, &application_log::run_command);
    connect(save_button, &QPushButton::clicked, this, &application_log::save_clicked);
    connect(clear_button, &QPushButton::clicked, this, &application_log::clear_clicked);
    connect(network_button, &QPushButton::clicked, this, &application_log::show_network_report);
    connect(tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (log_channel* shown = channel_at(index)) {
            show_filtered(*shown);
        }
    });
    drain_timer.start();
}

application_log::~application_log()
{
    // The streams get their own buffers back before anything they might still
    // write to goes away.
    delete cout_copy;
    delete cerr_copy;
    if (installed) {
        streams_taken = false;
    }
    window->close();
    drain_timer.stop();
    window->deleteLater();
    if (first_log == this) {
        first_log = nullptr;
    }
}

application_log* application_log::instance()
{
    return first_log;
}

void application_log::install()
{
    if (installed || streams_taken) {
        return;
    }
    installed = true;
    streams_taken = true;

    auto* tap = new copy_streambuf<char, std::char_traits<char>>(std::cout, capture);
    delete cout_copy;
    cout_copy = tap;
    tap = new copy_streambuf<char, std::char_traits<char>>(std::cerr, capture);
    delete cerr_copy;
    cerr_copy = tap;

    add_command(QStringLiteral("help"), [this](const QString&) { print_help(); });
}

void application_log::add_command(const QString& key, std::function<void(const QString&)> run,
                                  bool hidden)
{
    commands[key.toLower()] = log_command{std::move(run), hidden};
}

void application_log::open_log_window()
{
    if (window->isVisible()) {
        window->activateWindow();
    } else {
        window->show();
    }
}

void application_log::add_data(const QString& name, const QString& data)
{
    log_channel& target = channel(name);
    target.text += data;
    update_view(target, data);
}

log_channel& application_log::channel(const QString& name)
{
    auto found = channels.find(name);
    if (found == channels.end()) {
        log_channel added;
        added.name = name;
        added.view = new QTextEdit(window);
        added.view->setReadOnly(true);
        found = channels.insert(name, added);
        found->tab_index = tabs->addTab(found->view, name);
    }
    return *found;
}

log_channel* application_log::channel_at(int index)
{
    if (index < 0) {
        return nullptr;
    }
    const auto found = channels.find(tabs->tabText(index));
    return found == channels.end() ? nullptr : &*found;
}

QString application_log::filtered_text(const log_channel& channel) const
{
    const QString pattern = filter->text();
    if (pattern.isEmpty()) {
        return channel.text;
    }
    QString kept;
    const QStringList lines = channel.text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.contains(pattern, Qt::CaseInsensitive)) {
            kept += line + QLatin1Char('\n');
        }
    }
    return kept;
}

void application_log::update_view(log_channel& channel, const QString& data)
{
    if (filter->text().isEmpty()) {
        // Inserted as plain text: a log line that happens to look like markup must
        // show as it was written.
        QTextCursor cursor(channel.view->document());
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(data);
    } else {
        channel.view->setPlainText(filtered_text(channel));
    }
    // Someone reading further up keeps their place; otherwise follow the end.
    if (!channel.view->hasFocus()) {
        scroll_to_end(channel.view);
    }
}

void application_log::show_filtered(log_channel& channel)
{
    channel.view->setPlainText(filtered_text(channel));
    scroll_to_end(channel.view);
}

void application_log::drain()
{
    // While nobody can see the window the bytes wait in the capture, so that a
    // hidden log costs no widget work.
    if (!window->isVisible()) {
        return;
    }
    const std::string bytes = capture.str();
    if (bytes.empty()) {
        return;
    }
    // Emptied before the view changes: anything the update itself logs goes to the
    // next batch instead of being wiped with this one.
    capture.str(std::string());
    const QString text = QString::fromStdString(bytes);
    log_channel& main_channel = channel(QCoreApplication::applicationName());
    main_channel.text += text;
    update_view(main_channel, text);
}

void application_log::run_command()
{
    if (tabs->currentIndex() < 0) {
        return;
    }
    const QString line = filter->text();
    const QString lowered = line.toLower();
    const log_command* chosen = nullptr;
    int key_length = -1;
    for (const auto& [key, command] : commands) {
        if (lowered.startsWith(key) && key.size() > key_length) {
            chosen = &command;
            key_length = key.size();
        }
    }
    if (chosen == nullptr) {
        return;
    }
    // A copy, since a command may register commands and so replace itself.
    const auto run = chosen->run;
    run(line.mid(key_length));
    filter->clear();
}

void application_log::print_help()
{
    std::cout << "List of commands:" << std::endl;
    for (const auto& [key, command] : commands) {
        if (!command.hidden) {
            std::cout << "    " << key.toStdString() << std::endl;
        }
    }
}

QString application_log::save_log()
{
    const QString name = QCoreApplication::applicationName() + QStringLiteral(" Log ") +
                         QString::number(QDateTime::currentSecsSinceEpoch()) +
                         QStringLiteral(".log");
    QString path =
        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation) + QLatin1Char('/') + name;
    const QByteArray report = log_report(*this).toUtf8();

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        message_box::warning(window, tr("Failed to save application logs"),
                             tr("Can't save the application logs to\n%1\n\nYou might not have "
                                "write permission or the disk might be full.")
                                 .arg(path));
        return QString();
    }
    const qint64 written = file.write(report);
    if (written < report.size()) {
        message_box::warning(window, tr("Failed to save application logs"),
                             tr("Failed to write the complete application logs to\n%1\n\nCould "
                                "only write %2/%3 bytes. The disk might be full.")
                                 .arg(path, QString::number(qMax<qint64>(written, 0)),
                                      QString::number(report.size())));
    }
    if (!file.flush()) {
        qDebug("Failed to flush logfile QFile instance.");
    }
    file.close();
    return path;
}

void application_log::save_clicked()
{
    const QString path = save_log();
    if (!path.isEmpty()) {
        message_box::information(window, tr("Application logs saved"),
                                 tr("The application logs were saved to\n%1").arg(path));
    }
}

void application_log::clear_clicked()
{
    const auto answer =
        message_box::question(window, tr("Clear application logs"),
                              tr("Do you really want to clear the application logs?"),
                              message_box::Yes | message_box::No);
    if (answer != message_box::Yes) {
        return;
    }
    // What waits in the capture is kept: it is newer than anything cleared here.
    for (log_channel& each : channels) {
        each.text.clear();
        each.view->clear();
    }
}

void application_log::show_network_report()
{
    auto* report = new QTextEdit;
    report->setWindowTitle(tr("Network report"));
    report->setWindowModality(Qt::ApplicationModal);
    report->setAttribute(Qt::WA_DeleteOnClose);
    report->setReadOnly(true);
    report->setLineWrapMode(QTextEdit::NoWrap);
    QFont font = report->font();
    font.setFamily(QStringLiteral("monospace"));
    font.setStyleHint(QFont::TypeWriter);
    report->setFont(font);
    report->setPlainText(network_report());
    report->setMinimumSize(report->sizeHint());
    report->show();
}

} // namespace orn
