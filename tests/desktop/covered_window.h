// A host's window with one of everything that a sheet has to cover, and a note of what reached it.
#pragma once

#include <QAction>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStringList>
#include <QVBoxLayout>
#include <utility>

namespace qv_commons::desktop {

class CoveredWindow final : public QMainWindow {
 public:
  CoveredWindow() {
    setWindowTitle("Host");
    setAcceptDrops(true);
    setToolTip("host");
    QMenu* file = menuBar()->addMenu("&File");
    file->addAction("&Open", QKeySequence("Ctrl+O"), this, [this] { note("action"); });
    connect(file, &QMenu::aboutToShow, this, [this] { note("menu"); });
    for (const char* keys : {"Ctrl+K", "Ctrl+L, Ctrl+D", "Escape", "D"}) {
      connect(new QShortcut(QKeySequence(keys), this), &QShortcut::activated, this,
              [this, keys] { note(keys); });
    }
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    line->setAccessibleName("Line of the host");
    button->setToolTip("button");
    column->addWidget(line);
    column->addWidget(button);
    column->addStretch();
    setCentralWidget(page);
    connect(button, &QPushButton::clicked, this, [this] { note("button"); });
    connect(line, &QLineEdit::textEdited, this, [this] { note("edited"); });
    resize(900, 700);
  }

  QStringList takeNotes() { return std::exchange(notes_, {}); }

  QLineEdit* line = new QLineEdit("text of the host");
  QPushButton* button = new QPushButton("&Host button");

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) note("tool tip");
    return QMainWindow::event(event);
  }
  void closeEvent(QCloseEvent* event) override {
    note("close");
    QMainWindow::closeEvent(event);
  }
  void keyPressEvent(QKeyEvent*) override { note("key"); }
  void mousePressEvent(QMouseEvent*) override { note("press"); }
  void wheelEvent(QWheelEvent*) override { note("wheel"); }
  void contextMenuEvent(QContextMenuEvent*) override { note("context menu"); }
  void dragEnterEvent(QDragEnterEvent* event) override {
    note("drag");
    event->acceptProposedAction();
  }
  void dropEvent(QDropEvent*) override { note("drop"); }

 private:
  void note(const QString& what) { notes_ += what; }

  QStringList notes_;
};

}  // namespace qv_commons::desktop
