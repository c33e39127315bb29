#include "tests/platform/qt/qt_test_support.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <memory>

namespace mv::test {
namespace {

// The program's QApplication, made when the tests run (not when they are listed), with a fixed
// font so that sizes and metrics are the same on every machine.
class QtApplicationEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    app_ = std::make_unique<QApplication>(argc_, argv_);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
  }
  void TearDown() override { app_.reset(); }

 private:
  int argc_ = 1;
  char name_[8] = "qt_test";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> app_;
};

const auto* const kEnvironment = ::testing::AddGlobalTestEnvironment(new QtApplicationEnvironment);

}  // namespace

void WhenModal(std::function<void(QWidget& modal)> action) {
  auto* timer = new QTimer;
  timer->setInterval(5);
  QObject::connect(timer, &QTimer::timeout, [timer, action = std::move(action)] {
    QPointer<QWidget> modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible()) return;
    timer->deleteLater();
    timer->stop();
    QTimer::singleShot(3000, [modal] {  // a dialog the action left open would hang the test
      if (auto* dialog = qobject_cast<QDialog*>(modal.data()); dialog && dialog->isVisible()) {
        ADD_FAILURE() << "dialog left open";
        dialog->done(QDialog::Rejected);
      }
    });
    action(*modal);
  });
  timer->start();
}

}  // namespace mv::test
