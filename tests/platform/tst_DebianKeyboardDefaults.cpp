#include "platform/linux/DebianKeyboardDefaults.h"

#include <QTemporaryFile>
#include <QTest>

class tst_DebianKeyboardDefaults final : public QObject {
    Q_OBJECT

private slots:
    void parse_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("read"); // model|layout|variant|options
        QTest::newRow("double quotes")
            << QByteArray("XKBMODEL=\"pc105\"\nXKBLAYOUT=\"us,de\"\nXKBVARIANT=\",nodeadkeys\"\n"
                          "XKBOPTIONS=\"grp:alt_shift_toggle\"\n\nBACKSPACE=\"guess\"\n")
            << "pc105|us,de|,nodeadkeys|grp:alt_shift_toggle";
        QTest::newRow("single quotes, bare words, comments")
            << QByteArray("# XKBLAYOUT=fr\n  XKBLAYOUT='de' # German\nXKBVARIANT=nodeadkeys\n"
                          "export XKBOPTIONS=lv3:ralt_switch,\"caps:\"'escape'\n")
            << "|de|nodeadkeys|lv3:ralt_switch,caps:escape";
        QTest::newRow("escapes, later line wins")
            << QByteArray("XKBLAYOUT=us\nXKBLAYOUT=\"a\\\"b\"\\ c\nXKBMODEL=\n") << "|a\"b c||";
        QTest::newRow("empty") << QByteArray() << "|||";
    }
    void parse()
    {
        QFETCH(QByteArray, text);
        const DebianKeyboardDefaults d = DebianKeyboardDefaults::parse(text);
        QTEST(QStringList({d.model(), d.layout(), d.variant(), d.options()}).join(u'|'), "read");
    }

    void readsTheFile()
    {
        QVERIFY(!DebianKeyboardDefaults::read(QStringLiteral("/nonexistent/keyboard")));
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("XKBLAYOUT=\"fr\"\n");
        file.close();
        const std::optional<DebianKeyboardDefaults> defaults =
            DebianKeyboardDefaults::read(file.fileName());
        QVERIFY(defaults);
        QCOMPARE(defaults->layout(), QStringLiteral("fr"));
    }
};

QTEST_GUILESS_MAIN(tst_DebianKeyboardDefaults)
#include "tst_DebianKeyboardDefaults.moc"
