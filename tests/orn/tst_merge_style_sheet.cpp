#include "orn/merge_style_sheet.h"

#include <QWidget>
#include <QtTest>

class tst_merge_style_sheet : public QObject
{
    Q_OBJECT

private slots:
    void merges_declarations_data();
    void merges_declarations();
};

void tst_merge_style_sheet::merges_declarations_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("merged");

    QTest::newRow("append to an empty sheet") << ""
                                              << "margin:2px;"
                                              << "margin:2px;";
    QTest::newRow("append a new property") << "border:none;"
                                           << "margin:2px;"
                                           << "border:none;margin:2px;";
    QTest::newRow("replace in place, both ways round")
        << "border:none;margin:2px 2px 2px 2px;"
        << "margin:0px 0px 0px 0px;border:2px solid rgb(222,222,222);"
        << "border:2px solid rgb(222,222,222);margin:0px 0px 0px 0px;";
    QTest::newRow("an equal declaration changes nothing") << "margin:2px;border:none;"
                                                          << "margin:2px;"
                                                          << "margin:2px;border:none;";
    QTest::newRow("missing final semicolon is added") << ""
                                                      << "margin:1px"
                                                      << "margin:1px;";
    QTest::newRow("empty text leaves even an odd sheet") << "margin:2px"
                                                         << ""
                                                         << "margin:2px";
    QTest::newRow("margin:0 over margin:2px leaves one") << "margin:2px;"
                                                         << "margin:0;"
                                                         << "margin:0;";
    QTest::newRow("head includes the colon") << "margin-top:1px;"
                                             << "margin:0;"
                                             << "margin-top:1px;margin:0;";
    QTest::newRow("replace the sheet's unterminated last declaration") << "border:none;margin:2px"
                                                                       << "margin:0;"
                                                                       << "border:none;margin:0;";
    QTest::newRow("several declarations, in order") << "color:red;"
                                                    << "margin:1px;color:blue;padding:0;"
                                                    << "color:blue;margin:1px;padding:0;";
    QTest::newRow("only the first occurrence is replaced") << "margin:1px;margin:1px;"
                                                           << "margin:3px;"
                                                           << "margin:3px;margin:1px;";
}

void tst_merge_style_sheet::merges_declarations()
{
    QFETCH(QString, sheet);
    QFETCH(QString, text);
    QFETCH(QString, merged);

    QWidget widget;
    widget.setStyleSheet(sheet);
    orn::merge_style_sheet(&widget, text);
    QCOMPARE(widget.styleSheet(), merged);
}

QTEST_MAIN(tst_merge_style_sheet)
#include "tst_merge_style_sheet.moc"
