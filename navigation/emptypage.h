#pragma once

#include <QWidget>

/// Stands where a page is still to come, and says so.
class EmptyPage : public QWidget {
    Q_OBJECT
public:
    explicit EmptyPage(QWidget *parent);
};
