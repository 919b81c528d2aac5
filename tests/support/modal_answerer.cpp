#include "support/modal_answerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace {

modal_answerer::seen_dialog describe(QWidget* dialog)
{
    modal_answerer::seen_dialog record;
    record.class_name = QString::fromLatin1(dialog->metaObject()->className());
    record.title = dialog->windowTitle();
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        record.text = box->text();
        record.icon = box->icon();
        if (auto* buttons = box->findChild<QDialogButtonBox*>()) {
            for (QAbstractButton* button : buttons->buttons()) {
                record.buttons << button->text();
            }
        }
        if (QPushButton* button = box->defaultButton()) {
            record.default_button = button->text();
        }
    }
    if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
        record.directory = files->directory().absolutePath();
        record.name_filters = files->nameFilters();
    }
    return record;
}

modal_answerer* newest = nullptr;

} // namespace

modal_answerer::modal_answerer() : previous_(newest)
{
    newest = this;
    timer_.setInterval(5);
    connect(&timer_, &QTimer::timeout, this, &modal_answerer::poll);
    timer_.start();
}

modal_answerer::~modal_answerer()
{
    if (newest == this) {
        newest = previous_;
    }
}

void modal_answerer::expect(answer reply)
{
    pending_.push_back(std::move(reply));
}

void modal_answerer::poll()
{
    if (newest != this) {
        return;
    }
    QWidget* dialog = QApplication::activeModalWidget();
    // A box that was answered may still be on the modal stack for a moment.
    if (dialog == nullptr || !dialog->isVisible() || dialog == last_answered_) {
        return;
    }
    if (pending_.empty()) {
        // A dialog that opens with nothing queued for it would block the test until
        // its time runs out. It is recorded and sent away, so that the test fails
        // on what it saw. One answered before may wait for a later answer.
        if (!met_.contains(dialog)) {
            qWarning("modal_answerer: no answer queued for '%s'; rejected",
                     qPrintable(dialog->windowTitle()));
            seen_.push_back(describe(dialog));
            met_.append(dialog);
            last_answered_ = dialog;
            cancel()(dialog);
        }
        return;
    }
    seen_.push_back(describe(dialog));
    met_.append(dialog);
    last_answered_ = dialog;
    answer reply = std::move(pending_.front());
    pending_.pop_front();
    reply(dialog);
}

modal_answerer::answer modal_answerer::click(const QString& button_text)
{
    return [button_text](QWidget* dialog) {
        for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
            if (button->text() == button_text) {
                button->click();
                return;
            }
        }
        qWarning("modal_answerer: no button '%s' in '%s'", qPrintable(button_text),
                 qPrintable(dialog->windowTitle()));
        dialog->close();
    };
}

modal_answerer::answer modal_answerer::close()
{
    return [](QWidget* dialog) { dialog->close(); };
}

modal_answerer::answer modal_answerer::choose_files(const QStringList& paths)
{
    return [paths](QWidget* dialog) {
        auto* files = qobject_cast<QFileDialog*>(dialog);
        if (files == nullptr) {
            qWarning("modal_answerer: '%s' is no file dialog", qPrintable(dialog->windowTitle()));
            dialog->close();
            return;
        }
        // Typed as a user would: one name as it is, several in quotes.
        QString typed;
        if (paths.size() == 1) {
            typed = paths.front();
        } else {
            for (const QString& path : paths) {
                typed += QLatin1Char('"') + path + QLatin1String("\" ");
            }
        }
        if (auto* name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
            name->setText(typed);
        }
        // accept() is protected in QFileDialog; as a slot it can still be invoked.
        QMetaObject::invokeMethod(files, "accept", Qt::DirectConnection);
    };
}

modal_answerer::answer modal_answerer::cancel()
{
    return [](QWidget* dialog) {
        if (auto* modal = qobject_cast<QDialog*>(dialog)) {
            modal->reject();
        } else {
            dialog->close();
        }
    };
}
