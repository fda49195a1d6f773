// Makes the picture of the window that README shows.
//   picture FILE

#include "Window.hpp"

#include <QtWidgets>

int main(int argc, char** argv)
{
  QApplication const application(argc, argv);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
  auto const window = newWindow(QString());
  window->resize(520, 280);
  window->show();
  auto* const view = window->findChild<QTreeView*>();
  view->setCurrentIndex(view->model()->index(3, 0, view->model()->index(1, 0)));
  QApplication::processEvents();
  auto const image = window->grab().toImage().convertToFormat(
      QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
  return image.save(QString::fromLocal8Bit(argv[1]), "PNG", 0) ? 0 : 1;
}
