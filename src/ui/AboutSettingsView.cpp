#include "ui/AboutSettingsView.h"

#include "BuildConfig.h"
#include "ui/SettingsForm.h"
#include "ui/Symbols.h"
#include "ui/Utils.h"

#include <QDesktopServices>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

AboutSettingsView::AboutSettingsView(QWidget *parent) : QWidget(parent)
{
    auto *icon = new QLabel;
    icon->setObjectName(QStringLiteral("applicationIcon"));
    icon->setFixedSize(iconSize, iconSize);
    icon->setAlignment(Qt::AlignCenter);
    icon->setPixmap(
        Symbols::applicationIcon().pixmap(QSize(iconSize, iconSize), devicePixelRatioF()));

    auto *name = new QLabel(QStringLiteral("Vantrel"));
    QFont titleFont = name->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.7);
    titleFont.setBold(true);
    name->setFont(titleFont);

    auto *version = new QLabel(Utils::getAppVersionAndBuild());
    version->setObjectName(QStringLiteral("version"));
    SettingsForm::makeCaption(version);
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *rights = new QLabel(QString::fromUtf8(BuildConfig::rightsLine));
    rights->setObjectName(QStringLiteral("rights"));
    rights->setWordWrap(true);
    rights->setAlignment(Qt::AlignCenter);
    SettingsForm::makeCaption(rights);
    QFont rightsFont = rights->font();
    rightsFont.setPointSizeF(rightsFont.pointSizeF() * 0.92); // the second caption size
    rights->setFont(rightsFont);
    QPalette palette = rights->palette();
    QColor faded = palette.color(QPalette::WindowText);
    faded.setAlphaF(faded.alphaF() * 0.7f);
    palette.setColor(QPalette::WindowText, faded);
    rights->setPalette(palette);

    auto *separator = new QFrame;
    separator->setFrameShape(QFrame::HLine);
    separator->setFrameShadow(QFrame::Sunken);

    auto *links = new QHBoxLayout;
    links->setSpacing(16);
    links->addStretch(1);
    links->addWidget(makeLink(tr("Official Website"), QStringLiteral("globe"),
                              tr("Visit the official Vantrel website"),
                              QUrl(QString::fromUtf8(BuildConfig::websiteUrl))));
    links->addWidget(makeLink(QStringLiteral("YouTube"), QStringLiteral("youtube"),
                              tr("Watch Vantrel videos on YouTube"),
                              QUrl(QString::fromUtf8(BuildConfig::youTubeChannelUrl))));
    links->addStretch(1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(8);
    layout->addStretch(1);
    layout->addWidget(icon, 0, Qt::AlignHCenter);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addWidget(rights);
    layout->addSpacing(4);
    layout->addWidget(separator);
    layout->addLayout(links);
    layout->addStretch(1);
}

QToolButton *AboutSettingsView::makeLink(const QString &text, const QString &symbolName,
                                         const QString &help, const QUrl &url)
{
    auto *link = new QToolButton;
    link->setText(text);
    link->setIcon(Symbols::icon(symbolName, palette().color(QPalette::Link)));
    link->setIconSize(QSize(16, 16));
    link->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    link->setAutoRaise(true);
    link->setToolTip(help);
    link->setAccessibleName(text);
    QPalette linkPalette = link->palette();
    linkPalette.setColor(QPalette::ButtonText, linkPalette.color(QPalette::Link));
    link->setPalette(linkPalette);
    // Qt shows this cursor while the pointer is over the link and the arrow again once it leaves.
    link->setCursor(Qt::PointingHandCursor);
    connect(link, &QToolButton::clicked, this, [url] { QDesktopServices::openUrl(url); });
    return link;
}
