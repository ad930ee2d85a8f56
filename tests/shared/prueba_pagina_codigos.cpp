#include <gtest/gtest.h>

#include "shared/pagina_codigos.h"

namespace {

TEST(PaginaCodigos, every_byte_comes_back_and_letters_have_their_windows_1252_bytes) {
  QByteArray todos;
  for (int i = 0; i < 256; ++i) todos.append(static_cast<char>(i));
  const QString texto = PaginaCodigos::ATexto(todos);
  EXPECT_EQ(PaginaCodigos::ABytes(texto), todos);
  EXPECT_TRUE(PaginaCodigos::Representable(texto));
  EXPECT_EQ(PaginaCodigos::ATexto("\x80 \x8A \x99 \xF1 \xFF \x81"), u"€ Š ™ ñ ÿ \u0081"_qs);
}

TEST(PaginaCodigos, what_the_page_lacks_becomes_one_question_mark) {
  const QChar alto(0xD83D);
  const QChar bajo(0xDE00);
  const std::vector<std::pair<QString, QByteArray>> casos{{u"aΩb"_qs, "a?b"},
                                                          {u"\u0080"_qs, "?"},
                                                          {u"a😀b"_qs, "a?b"},
                                                          {QString(alto) + u'x', "?x"},
                                                          {QString(alto) + alto + bajo, "??"},
                                                          {QString(bajo) + alto, "??"},
                                                          {u"n\u0303"_qs, "n?"}};
  for (const auto& [texto, bytes] : casos) {
    EXPECT_EQ(PaginaCodigos::ABytes(texto), bytes) << qPrintable(texto);
    EXPECT_FALSE(PaginaCodigos::Representable(texto)) << qPrintable(texto);
  }
}

}  // namespace
