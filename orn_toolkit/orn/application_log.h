#pragma once

#include "orn/copy_streambuf.h"

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <map>
#include <sstream>

class QLineEdit;
class QPushButton;
class QTabWidget;
class QTextEdit;
class QWidget;

namespace orn {

// One named stream of text in the log window, shown in a tab of its own.
struct log_channel
{
    QString name;              // also the tab's text
    QTextEdit* view = nullptr; // read-only, shows the text through the filter
    QString text;              // the whole text: filter and save read this, not the view
    int tab_index = -1;
};

// A command of the log window's filter line; it is given the rest of the line.
struct log_command
{
    std::function<void(const QString& arguments)> run;
    bool hidden = false; // works, but "help" doesn't list it
};

// The program's own log viewer, one per process. It taps the standard output and
// error streams, so that every console line also lands in a window that the user
// can open, filter and save. Its filter line doubles as a small command prompt.
class application_log : public QObject
{
    Q_OBJECT

public:
    explicit application_log(QObject* parent);
    ~application_log() override;
    application_log(const application_log&) = delete;
    application_log& operator=(const application_log&) = delete;

    // The first log made and still alive; null until one is made.
    static application_log* instance();

    // Takes over std::cout and std::cerr and registers "help". Only the first call
    // on any log of the process has an effect.
    void install();

    // Registers a command under its lower-case key, replacing one of that key.
    void add_command(const QString& key, std::function<void(const QString&)> run,
                     bool hidden = false);

public slots:
    void open_log_window();
    // The path of the saved file, or an empty text if it could not be created.
    QString save_log();
    void add_data(const QString& name, const QString& data);

private:
    friend QString log_report(const application_log& log);

    log_channel& channel(const QString& name);
    // The channel shown in this tab, null for no tab.
    log_channel* channel_at(int index);
    QString filtered_text(const log_channel& channel) const;
    void update_view(log_channel& channel, const QString& data);
    void show_filtered(log_channel& channel);
    void drain();
    void run_command();
    void print_help();
    void save_clicked();
    void clear_clicked();
    void show_network_report();

    QWidget* window;
    QLineEdit* filter;
    QPushButton* save_button;
    QPushButton* clear_button;
    QPushButton* network_button;
    QTabWidget* tabs;
    // What the taps caught and the window hasn't taken yet; unbounded, as nothing
    // may be lost while the window stays hidden.
    std::ostringstream capture;
    QTimer drain_timer; // moves the capture into the window, on the interface thread
    bool installed = false;
    copy_streambuf<char, std::char_traits<char>>* cout_copy = nullptr;
    copy_streambuf<char, std::char_traits<char>>* cerr_copy = nullptr;
    QMap<QString, log_channel> channels;
    std::map<QString, log_command> commands;
};

} // namespace orn
