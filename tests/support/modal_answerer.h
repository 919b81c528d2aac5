#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <vector>

// Answers the real modal dialogs of a slot as they open, the way a user would:
// each queued answer is given to the next modal widget that appears. The slot
// under test runs unchanged, with its own message boxes and file dialogs. A new
// dialog that finds no answer queued is recorded in seen() and rejected, so that
// an unexpected dialog fails a test instead of blocking it. Of two answerers alive
// at once, the newer one answers.
//
//   modal_answerer answers;
//   answers.expect(modal_answerer::choose_files({path}));
//   answers.expect(modal_answerer::click("Convert"));
//   window.on_button_convert_clicked();
//   QCOMPARE(answers.seen().size(), 2);
class modal_answerer : public QObject
{
public:
    using answer = std::function<void(QWidget* dialog)>;

    // What a dialog showed when it was answered.
    struct seen_dialog
    {
        QString class_name;
        QString title;
        QString text;             // a message box's text, empty for other dialogs
        int icon = 0;             // a message box's QMessageBox::Icon
        QStringList buttons;      // button texts in the order the box lays them out
        QString default_button;   // text of the default button, empty if none
        QString directory;        // a file dialog's folder, empty for other dialogs
        QStringList name_filters; // a file dialog's filters
    };

    modal_answerer();
    ~modal_answerer() override;

    void expect(answer reply);
    // True when every queued answer has been given.
    bool done() const { return pending_.empty(); }
    const std::vector<seen_dialog>& seen() const { return seen_; }

    // Clicks the button with this text (message boxes and any other dialog).
    static answer click(const QString& button_text);
    // Closes the dialog as the title bar's close button would.
    static answer close();
    // Fills a file dialog's name field with these paths and accepts it.
    static answer choose_files(const QStringList& paths);
    // Rejects whatever dialog it is (a cancelled file dialog).
    static answer cancel();

private:
    void poll();

    QTimer timer_;
    // Of several answerers alive at once, only the newest answers.
    modal_answerer* previous_ = nullptr;
    std::deque<answer> pending_;
    std::vector<seen_dialog> seen_;
    QPointer<QWidget> last_answered_;
    // Every dialog met so far; one of them may come back for a later answer.
    QList<QPointer<QWidget>> met_;
};
