#include <array>
#include <gtest/gtest.h>
#include <new>

#include <QTimer>

#include "platform/red.h"

TEST(Red, an_exception_ends_its_event_and_is_told_once_in_spanish) {
  int cuantos = 1;
  std::array argumentos{const_cast<char*>("velda"), static_cast<char*>(nullptr)};
  Red red(cuantos, argumentos.data());
  QStringList dicho;
  red.PonerAviso([&](const QString& motivo) { dicho << motivo; });
  for (int i = 0; i < 3; ++i) QTimer::singleShot(0, &red, [] { throw std::bad_alloc(); });
  QTimer::singleShot(50, &red, [&] { red.exit(7); });
  EXPECT_EQ(red.Ejecutar(), 7);
  ASSERT_EQ(dicho.size(), 1);
  EXPECT_TRUE(dicho[0].startsWith(u"No hay memoria suficiente."));
}
