// A window for whole-program tests that says on standard output where it was clicked: it stands
// under Vantrel's overlay to show that clicks pass through it.
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <cstdio>

namespace {

class ClickTarget final : public QWidget {
protected:
    void paintEvent(QPaintEvent *) override
    {
        // Dark, so that light caps over it stand out.
        QPainter(this).fillRect(rect(), Qt::black);
        if (!m_shown)
            std::puts("shown");
        m_shown = true;
        std::fflush(stdout);
    }
    void mousePressEvent(QMouseEvent *event) override
    {
        std::printf("press %d %d\n", event->position().toPoint().x(),
                    event->position().toPoint().y());
        std::fflush(stdout);
    }

private:
    bool m_shown = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    ClickTarget target;
    target.setWindowTitle(QStringLiteral("click target"));
    target.show();
    return application.exec();
}
