#include "platform/wayland/GSettingsInputSources.h"
#include "platform/wayland/GnomeInputSourcesWatcher.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Source = InputSourcesSettings::Source;

namespace {

// "xkb:us ibus:anthy" as (type, id) pairs.
QList<Source> sourceList(const QString &text)
{
    QList<Source> list;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts))
        list.append({word.section(u':', 0, 0), word.section(u':', 1)});
    return list;
}

class FakeInputSourcesSettings final : public InputSourcesSettings {
public:
    QList<Source> sources() const override { return m_sources; }
    QList<Source> mruSources() const override { return m_mru; }
    quint32 current() const override { return m_current; }

    QList<Source> m_sources = sourceList(QStringLiteral("xkb:us xkb:de"));
    QList<Source> m_mru = sourceList(QStringLiteral("xkb:de xkb:us"));
    quint32 m_current = 0;
};

} // namespace

class tst_GnomeInputSourcesWatcher final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // GLib reads these once: GSettings in a file of this test's own, never the user's.
        QVERIFY(m_config.isValid());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
        qputenv("GSETTINGS_BACKEND", "keyfile");
    }

    void activeGroup_data()
    {
        QTest::addColumn<QString>("sources");
        QTest::addColumn<QString>("mru");
        QTest::addColumn<quint32>("current");
        QTest::addColumn<int>("group"); // -1: none
        const auto row = [](const char *name, const char *sources, const char *mru, quint32 current,
                            int group) {
            QTest::newRow(name) << QString(sources) << QString(mru) << current << group;
        };
        row("first of mru", "xkb:us xkb:de xkb:fr", "xkb:de xkb:us", 0, 1);
        row("input method skipped", "xkb:us ibus:anthy xkb:de", "ibus:anthy xkb:de xkb:us", 0, 1);
        row("no mru: current", "xkb:us xkb:de", "", 1, 1);
        row("unknown id: current", "xkb:us xkb:de", "xkb:ru", 1, 1);
        row("current on input method", "xkb:us ibus:anthy", "", 1, -1);
        row("current out of range", "xkb:us", "xkb:ru", 5, -1);
        row("fourth source, next keymap", "xkb:us xkb:de xkb:fr xkb:ru", "xkb:ru", 0, 0);
    }
    void activeGroup()
    {
        QFETCH(QString, sources);
        QFETCH(QString, mru);
        QFETCH(quint32, current);
        QFETCH(int, group);
        const std::optional<quint32> result =
            GnomeInputSourcesWatcher::activeGroup(sourceList(sources), sourceList(mru), current);
        QCOMPARE(result ? int(*result) : -1, group);
    }

    // Once at start, then on every change the settings report.
    void followsTheSettings()
    {
        auto settings = std::make_unique<FakeInputSourcesSettings>();
        FakeInputSourcesSettings *fake = settings.get();
        GnomeInputSourcesWatcher watcher(std::move(settings));
        QSignalSpy spy(&watcher, &GnomeInputSourcesWatcher::activeLayoutChanged);
        QVERIFY(spy.wait());
        fake->m_mru = sourceList(QStringLiteral("xkb:us xkb:de"));
        emit fake->changed();
        QCOMPARE(spy.size(), 2);
        QCOMPARE(spy.at(0).at(0).toUInt(), 1u);
        QCOMPARE(spy.at(1).at(0).toUInt(), 0u);
    }

    // The real store reads what another program (GNOME Shell; here gsettings) writes.
    void readsGSettings()
    {
        const std::unique_ptr<GSettingsInputSources> settings = GSettingsInputSources::create();
        if (!settings)
            QSKIP("GNOME's input-source settings schema is not installed");
        QSignalSpy spy(settings.get(), &InputSourcesSettings::changed);
        QCOMPARE(QProcess::execute(QStringLiteral("gsettings"),
                                   {QStringLiteral("set"),
                                    QStringLiteral("org.gnome.desktop.input-sources"),
                                    QStringLiteral("mru-sources"),
                                    QStringLiteral("[('ibus','anthy'),('xkb','de')]")}),
                 0);
        QVERIFY(spy.wait());
        QCOMPARE(settings->mruSources(), sourceList(QStringLiteral("ibus:anthy xkb:de")));
        QCOMPARE(settings->current(), 0u);
    }

private:
    QTemporaryDir m_config;
};

QTEST_GUILESS_MAIN(tst_GnomeInputSourcesWatcher)
#include "tst_GnomeInputSourcesWatcher.moc"
