// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIconEngine>
#include <QIconEnginePlugin>
#include <QPixmap>
#include <QVector>

namespace headunit {

/// Icons whose pictures are read when they are first drawn.
///
/// Qt's own engine reads the pictures of all states when a form is set up, which is half of the time that an
/// application takes to appear. A state without a picture of its own shows that of the nearest state, chosen as Qt's
/// engine chooses it.
class LazyIconEngine : public QIconEngine {
public:
    void addFile(const QString &fileName, const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    QIconEngine *clone() const override;
    QString key() const override;

private:
    struct Entry {
        QIcon::Mode mode;
        QIcon::State state;
        QString fileName;
        QPixmap pixmap;  ///< null until it is needed
    };

    void add(const Entry &entry);
    const QPixmap *picture(QIcon::Mode mode, QIcon::State state) const;

    mutable QVector<Entry> m_entries;
};

/// Makes QIcon use the engine for PNG files.
class LazyIconEnginePlugin : public QIconEnginePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "lazyiconengine.json")
public:
    QIconEngine *create(const QString &fileName) override;
};

}  // namespace headunit
