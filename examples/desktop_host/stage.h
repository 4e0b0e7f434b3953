// What a tour needs of its surroundings: waiting, pictures, the transcript.
#pragma once

#include <QDir>
#include <QFile>
#include <QWidget>
#include <cstdint>
#include <functional>

namespace host {

class Stage final {
 public:
  // Makes the directory where it is missing, and begins the transcript anew or goes on with it.
  // `isUsable` tells whether it can be written.
  enum class Transcript : std::uint8_t { fresh, continued };
  Stage(const QString& directory, Transcript transcript);
  bool isUsable() const { return transcript_.isOpen(); }
  QString path(const QString& name) const { return directory_.filePath(name); }

  // A line of the transcript, also on the console.
  void note(const QString& line);

  // Lets events run until `done`; where that takes too long, notes that `what` did not happen, and
  // the tour counts as failed.
  bool waitFor(const QString& what, const std::function<bool()>& done);

  // A picture of `widget` as `name`.png: once it has settled, or of this very moment, which may be
  // its last.
  void picture(const QString& name, QWidget& widget);
  void pictureAtOnce(const QString& name, QWidget& widget);

  // The window that is on top of all others by modality, once there is one; null where none came
  // up.
  QWidget* waitForSheet(const QString& what, const QWidget& window);

  // Clicks the button of that object name in `window`.
  void click(QWidget& window, const QString& buttonName);

  void fail(const QString& why);
  bool failed() const { return failed_; }

 private:
  QDir directory_;
  QFile transcript_;
  bool failed_ = false;
};

}  // namespace host
