#pragma once

#include <QStringList>
#include <QWidget>

namespace headunit {

/// The home screen: a tile for each application, for the band-adjust panel and for the rest of the car, and a line for
/// each plug-in that could not be loaded.
class HomeScreen : public QWidget {
    Q_OBJECT
public:
    /// \a applications are ids, \a failures readable lines.
    HomeScreen(const QStringList &applications, const QStringList &failures, QWidget *parent);

Q_SIGNALS:
    void applicationChosen(const QString &id);
    void bandAdjustChosen();
    void carChosen();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void addTiles(const QStringList &applications);

    const QStringList m_failures;
};

}  // namespace headunit
