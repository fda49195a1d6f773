// Makes the picture of the window that README shows.
//   picture FILE

#include "Window.hpp"

int main(int argc, char** argv)
{
  QApplication const application(argc, argv);
  QLocale::setDefault(QLocale(u"en_CA"_s));
  Window window{QString()};
  window.resize(520, 280);
  window.show();
  QApplication::processEvents();
  auto const image = window.grab().toImage().convertToFormat(QImage::Format_Indexed8,
                                                             Qt::ThresholdDither | Qt::AvoidDither);
  return image.save(QApplication::arguments().at(1), "PNG", 0) ? 0 : 1;
}
