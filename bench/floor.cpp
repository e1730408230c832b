// SPDX-License-Identifier: Apache-2.0
// The bare Qt floor that the product is measured against, in the same run: what the same screen change costs with
// nothing but plain labels and ready pixmaps.
//
//   floor start                       a 1024 x 600 window with one pixmap, painted once
//   floor first LABELS                a page of that many labels, built and shown; -1: no page
//   floor switch STEPS LABELS LABELS  two pages of that many labels, shown in turn
//   floor drag STEPS                  one cached pixmap, moved by mouse events
//   floor text STEPS                  one label with another number at each step
//   floor graph STEPS                 a key tapped, and with it another number and another ready pixmap of a graph's
//   size floor scroll STEPS                one ready pixmap of a page's height, moved by mouse events in a window of
//   980 x 440

#include "benchtools.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <memory>

namespace {

// Opaque for the whole screen; a round key for the rest, see-through at its edges as the product's pictures are.
QPixmap readyPixmap(int width, int height) {
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::darkBlue);
    return pixmap;
}

QPixmap readyKey() {
    QPixmap pixmap(72, 72);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::darkBlue);
    painter.drawEllipse(pixmap.rect().adjusted(1, 1, -1, -1));
    return pixmap;
}

void start() {
    QLabel window;
    window.setFixedSize(bench::screen);
    window.setPixmap(readyPixmap(bench::screen.width(), bench::screen.height()));
    bench::showAndPaint(&window);
}

QWidget *page(QWidget *parent, int labels, const QPixmap &pixmap) {
    auto *page = new QWidget(parent);
    page->setGeometry(136, 130, 888, 470);
    for (int i = 0; i < labels; ++i) {
        auto *label = new QLabel(page);
        label->setPixmap(pixmap);
        label->setGeometry(8 + (i % 9) * 96, 8 + (i / 9) * 90, 72, 72);
    }
    page->hide();
    return page;
}

void first(int labels) {
    QWidget window;
    window.setFixedSize(bench::screen);
    const QPixmap pixmap = readyPixmap(72, 72);
    bench::showAndPaint(&window);
    if (labels >= 0) {
        page(&window, labels, pixmap)->show();
        bench::settle();
    }
}

void switchPages(int steps, int labelsA, int labelsB) {
    QWidget window;
    window.setFixedSize(bench::screen);
    const QPixmap pixmap = readyKey();
    QWidget *const pages[] = {page(&window, labelsA, pixmap), page(&window, labelsB, pixmap)};
    bench::showAndPaint(&window);
    for (int i = 0; i < steps; ++i) {
        pages[(i + 1) % 2]->hide();
        pages[i % 2]->show();
        bench::settle();
    }
}

/// Moves its one label to the finger.
class DragFloor : public QWidget {
public:
    DragFloor() : m_label(new QLabel(this)) {
        setFixedSize(bench::screen);
        m_label->setPixmap(readyKey());
        m_label->resize(72, 72);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { m_label->move(event->pos()); }
    void mouseMoveEvent(QMouseEvent *event) override { m_label->move(event->pos()); }

private:
    QLabel *m_label;
};

void drag(int steps) {
    DragFloor window;
    bench::showAndPaint(&window);
    bench::drag(&window, QRect(300, 200, 180, 180), steps, Qt::Horizontal | Qt::Vertical);
}

void text(int steps) {
    QWidget window;
    window.setFixedSize(bench::screen);
    QLabel label(&window);
    label.setGeometry(80, 80, 96, 56);
    label.setAlignment(Qt::AlignCenter);
    QFont font = label.font();
    font.setPointSize(24);
    label.setFont(font);
    bench::showAndPaint(&window);
    for (int i = 1; i <= steps; ++i) {
        label.setText(QString::number(i / 10.0));
        bench::settle();
    }
}

/// A key that shows one of two ready pixmaps, as it is pressed or not.
class KeyFloor : public QLabel {
public:
    explicit KeyFloor(QWidget *parent) : QLabel(parent) { setPixmap(m_normal); }

protected:
    void mousePressEvent(QMouseEvent *) override { setPixmap(m_pressed); }
    void mouseReleaseEvent(QMouseEvent *) override { setPixmap(m_normal); }

private:
    const QPixmap m_normal = readyKey();
    const QPixmap m_pressed = readyKey();
};

void graph(int steps) {
    QWidget window;
    window.setFixedSize(bench::screen);
    KeyFloor key(&window);
    key.setGeometry(10, 400, 72, 72);
    QLabel number(&window);
    number.setGeometry(100, 400, 96, 56);
    QFont font = number.font();
    font.setPointSize(15);
    number.setFont(font);
    QLabel graph(&window);
    graph.setGeometry(170, 0, 688, 257);
    const QPixmap pixmaps[] = {readyPixmap(688, 257), readyPixmap(688, 257)};
    bench::showAndPaint(&window);
    for (int i = 1; i <= steps; ++i) {
        bench::tap(&key);
        number.setText(QString::number(i % 12));
        graph.setPixmap(pixmaps[i % 2]);
        bench::settle();
    }
}

/// Moves its one label up and down with the finger.
class ScrollFloor : public QWidget {
public:
    ScrollFloor() : m_label(new QLabel(this)) {
        setFixedSize(980, 440);
        m_label->setPixmap(readyPixmap(955, 885));
        m_label->setGeometry(0, lowest, 955, 885);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { m_grip = event->y(); }
    void mouseMoveEvent(QMouseEvent *event) override {
        m_label->move(0, qBound(lowest, lowest + event->y() - m_grip, 0));
    }

private:
    static constexpr int lowest = 440 - 885;

    QLabel *m_label;
    int m_grip = 0;
};

void scroll(int steps) {
    ScrollFloor window;
    bench::showAndPaint(&window);
    bench::drag(&window, QRect(40, 20, 200, 400), steps, Qt::Vertical);
}

}  // namespace

int main(int argc, char **argv) {
    bench::Application app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const auto number = [&args](int i) { return args.value(i).toInt(); };
    const QString what = args.value(0);
    if (what == QLatin1String("start")) {
        start();
    } else if (what == QLatin1String("first")) {
        first(number(1));
    } else if (what == QLatin1String("switch")) {
        switchPages(number(1), number(2), number(3));
    } else if (what == QLatin1String("drag")) {
        drag(number(1));
    } else if (what == QLatin1String("text")) {
        text(number(1));
    } else if (what == QLatin1String("graph")) {
        graph(number(1));
    } else if (what == QLatin1String("scroll")) {
        scroll(number(1));
    } else {
        qCritical(
            "floor start | floor first LABELS | floor switch STEPS LABELS LABELS | floor drag STEPS | "
            "floor text STEPS | floor graph STEPS | floor scroll STEPS");
        return 2;
    }
    return 0;
}
