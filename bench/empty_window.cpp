// The least that a Qt program can show: the yardstick for the start and the memory of Zarvo.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window(nullptr, Qt::Window | Qt::FramelessWindowHint);
  window.setWindowTitle(QStringLiteral("Empty window"));
  window.setFixedSize(230, 484);
  window.move(33, 27);
  window.show();
  return QApplication::exec();
}
