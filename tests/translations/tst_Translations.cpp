#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// The translations against the code: lupdate reads the sources into copies of the .ts files, so
// that a text new in the code shows as untranslated, then every language must have a finished
// translation of every text that keeps the source's placeholders.
namespace {

struct Message {
    QString context;
    QString source;
    QStringList translations; // one, or one per plural form
    bool finished = true;
};

QList<Message> readMessages(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    bool numerus = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringView name = xml.name();
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            numerus = xml.attributes().value(QStringLiteral("numerus")) == u"yes";
            messages.append({context, {}, {}, true});
        } else if (name == u"source") {
            messages.last().source = xml.readElementText();
        } else if (name == u"translation") {
            messages.last().finished = xml.attributes().value(QStringLiteral("type")).isEmpty();
            if (!numerus)
                messages.last().translations.append(xml.readElementText());
        } else if (name == u"numerusform") {
            messages.last().translations.append(xml.readElementText());
        }
    }
    return messages;
}

// %1 to %99 and %n, with or without the locale flag L.
QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("%L?(\\d{1,2}|n)"));
    QSet<QString> found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found.insert(match.captured(1));
    return found;
}

} // namespace

class tst_Translations final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QString tsFile(const QString &language) const
    {
        return m_dir.filePath(QStringLiteral("vantrel_%1.ts").arg(language));
    }

private slots:
    void initTestCase()
    {
        QStringList arguments{QStringLiteral("-silent"),
                              QStringLiteral("-no-obsolete"),
                              QStringLiteral("-locations"),
                              QStringLiteral("none"),
                              QStringLiteral("-I"),
                              QStringLiteral(VANTREL_SOURCE_DIR),
                              QStringLiteral("@") + QStringLiteral(VANTREL_TRANSLATED_SOURCES),
                              QStringLiteral("-ts")};
        for (const QString &language : QStringLiteral(VANTREL_LANGUAGES).split(u',')) {
            const QString source = QStringLiteral(VANTREL_TS_DIR "/vantrel_%1.ts").arg(language);
            QVERIFY2(QFile::copy(source, tsFile(language)), qPrintable(source));
            QFile(tsFile(language)).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
            arguments.append(tsFile(language));
        }
        QProcess lupdate;
        lupdate.setProcessChannelMode(QProcess::MergedChannels);
        lupdate.start(QStringLiteral(VANTREL_LUPDATE), arguments);
        QVERIFY(lupdate.waitForFinished(60000));
        QVERIFY2(lupdate.exitCode() == 0, lupdate.readAll().constData());
    }

    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : QStringLiteral(VANTREL_LANGUAGES).split(u','))
            QTest::newRow(qPrintable(language)) << language;
    }
    void everyTextIsTranslated()
    {
        QFETCH(QString, language);
        const QList<Message> messages = readMessages(tsFile(language));
        QVERIFY(!messages.isEmpty());
        QStringList untranslated;
        for (const Message &message : messages)
            if (!message.finished || message.translations.isEmpty() ||
                message.translations.contains(QString()))
                untranslated.append(message.context + u": " + message.source);
        QVERIFY2(untranslated.isEmpty(),
                 qPrintable(QStringLiteral("not translated (run the update_translations target "
                                           "and translate):\n") +
                            untranslated.join(u'\n')));
    }

    void placeholdersAreKept_data() { everyTextIsTranslated_data(); }

    void placeholdersAreKept()
    {
        QFETCH(QString, language);
        QStringList dropped;
        for (const Message &message : readMessages(tsFile(language)))
            for (const QString &translation : message.translations)
                if (message.finished && placeholders(translation) != placeholders(message.source))
                    dropped.append(message.source + u" -> " + translation);
        QVERIFY2(dropped.isEmpty(), qPrintable(dropped.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_Translations.moc"
