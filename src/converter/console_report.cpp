#include "converter/console_report.h"

#include "converter/loss_report.h"
#include "converter/terminal_text.h"

#include <cstdio>

namespace {

constexpr int bar_width = 30;

void write_line(const char* kind, const QString& file, const QString& text)
{
    const QString about = file.isEmpty() ? QString() : file + QStringLiteral(": ");
    std::fprintf(stderr, "lookwright-convert: %s: %s\n", kind,
                 qUtf8Printable(terminal_safe(about + text)));
}

} // namespace

console_report::console_report(bool show_progress, bool quiet)
    : show_progress_(show_progress), quiet_(quiet)
{}

void console_report::error(const QString& file, const QString& reason)
{
    if (losses_ != nullptr) {
        losses_->note_error(file, reason);
    }
    clear_bar();
    write_line("error", file, reason);
}

void console_report::warning(const QString& file, const QString& reason)
{
    keep(file, reason);
    if (quiet_) {
        return;
    }
    clear_bar();
    write_line("warning", file, reason);
}

void console_report::log_line(const char* kind, const QString& file, const QString& text)
{
    clear_bar();
    write_line(kind, file, text);
}

void console_report::keep(const QString& file, const QString& text)
{
    if (losses_ != nullptr) {
        losses_->note_warning(file, text);
    }
}

void console_report::progress(int done, int total)
{
    if (!show_progress_ || total <= 0) {
        return;
    }
    const int filled = static_cast<int>(static_cast<long long>(done) * bar_width / total);
    std::fprintf(stderr, "\r[%s%s] %d/%d", QByteArray(filled, '#').constData(),
                 QByteArray(bar_width - filled, '.').constData(), done, total);
    std::fflush(stderr);
    bar_visible_ = true;
}

void console_report::finish_progress()
{
    clear_bar();
}

void console_report::clear_bar()
{
    if (bar_visible_) {
        std::fprintf(stderr, "\r\033[K");
        bar_visible_ = false;
    }
}
