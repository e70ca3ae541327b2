#include "pictures/qt/picture_files.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>
#include <QMimeData>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "pictures/qt/application.h"
#include "pictures/qt/picture_clipboard.h"
#include "pictures/qt/picture_painter.h"
#include "support/temporary_folder.h"

namespace kov {
namespace {

namespace fs = std::filesystem;

Picture sample() {
  Picture picture;
  picture.width = 120;
  picture.height = 80;
  picture.rasters.push_back({20, 20, 2, 1, {0xff102030, 0xff405060}});
  picture.boxes.push_back({40, 20, 30, 40, {0, 200, 0}});
  picture.lines.push_back({{{10, 10}, {110, 70}}, {200, 0, 0}});
  picture.texts.push_back({{60, 70}, Anchor::centre, "k1 < n & \x01", 12, {0, 0, 0}});
  picture.notes = {{"Title", "a<b> & \"c\".aa1"}, {"Source", "Größe.aa1"}, {"Parameters", "x=1\ny=\x02 2"}};
  return picture;
}

QString text_of_element(const QByteArray& svg, const QString& name) {
  QXmlStreamReader reader(svg);
  QString text;
  int count = 0;
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == name) {
      text = reader.readElementText();
      ++count;
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_EQ(count, 1) << name.toStdString();
  return text;
}

TEST(Png, ShowsThePictureAndCarriesItsNotes) {
  const Picture picture = sample();
  QByteArray bytes = png_bytes(picture);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "png");
  const QImage image = reader.read();
  EXPECT_EQ(image.convertToFormat(QImage::Format_RGB32).copy(), picture_image(picture).copy());
  EXPECT_EQ(image.text("Title"), "a<b> & \"c\".aa1");
  EXPECT_EQ(image.text("Source"), QStringLiteral("Größe.aa1"));
  EXPECT_EQ(image.text("Parameters"), QStringLiteral("x=1\ny=\uFFFD 2"));
}

TEST(Png, IsTheSameEveryTime) { EXPECT_EQ(png_bytes(sample()), png_bytes(sample())); }

TEST(Svg, IsValidAndCarriesItsNotes) {
  const QByteArray bytes = svg_bytes(sample());
  EXPECT_EQ(text_of_element(bytes, "title"), "a<b> & \"c\".aa1");
  EXPECT_EQ(text_of_element(bytes, "desc"),
            QStringLiteral("Title: a<b> & \"c\".aa1\nSource: Größe.aa1\nParameters: x=1\ny=\uFFFD 2\n"));
  EXPECT_EQ(text_of_element(bytes, "text"), QStringLiteral("k1 < n & \uFFFD"));
}

TEST(Svg, WithoutNotesHasNeitherTitleNorDescription) {
  Picture picture = sample();
  picture.notes.clear();
  const QByteArray bytes = svg_bytes(picture);
  EXPECT_FALSE(bytes.contains("<title>"));
  EXPECT_FALSE(bytes.contains("<desc>"));
  EXPECT_EQ(svg_bytes(picture), bytes);
}

TEST(Svg, HasThePicturesSizeInPixels) {
  QSvgRenderer renderer(svg_bytes(sample()));
  ASSERT_TRUE(renderer.isValid());
  EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 120, 80));
  const QByteArray bytes = svg_bytes(sample());
  EXPECT_TRUE(bytes.contains("width=\"31.75mm\"")) << "120 pixels at 96 an inch";
  EXPECT_TRUE(bytes.contains("font-size=\"12\""));
  EXPECT_TRUE(bytes.contains("font-family=\"DejaVu Sans\""));
}

TEST(Svg, ShowsWhatTheImageShows) {
  const Picture picture = sample();
  QImage drawn(picture.width, picture.height, QImage::Format_RGB32);
  drawn.fill(Qt::white);
  QPainter painter(&drawn);
  QSvgRenderer(svg_bytes(picture)).render(&painter);
  painter.end();
  const QImage image = picture_image(picture);
  int different = 0;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const int difference = qGray(drawn.pixel(x, y)) - qGray(image.pixel(x, y));
      different += std::abs(difference) > 100 ? 1 : 0;
    }
  }
  EXPECT_LT(different, 20);
}

TEST(Pictures, WithoutPixelsAreRefused) {
  Picture picture = sample();
  picture.width = 0;
  EXPECT_THROW(png_bytes(picture), picture_error);
  EXPECT_THROW(svg_bytes(picture), picture_error);
}

TEST(SavePicture, FormatFollowsTheName) {
  const TemporaryFolder folder;
  const fs::path path = folder.path();
  for (const char* name : {"a.png", "b.PNG", "c.svg", "d.Svg"}) {
    EXPECT_TRUE(is_picture_name(path / name));
    test_writer().write(sample(), path / name);
  }
  EXPECT_EQ(text_of(path / "a.png"), png_bytes(sample()).toStdString());
  EXPECT_EQ(text_of(path / "b.PNG"), png_bytes(sample()).toStdString());
  EXPECT_EQ(text_of(path / "c.svg"), svg_bytes(sample()).toStdString());
  EXPECT_EQ(text_of(path / "d.Svg"), svg_bytes(sample()).toStdString());
}

std::string failure_of(const fs::path& file) {
  try {
    save_picture(sample(), file);
  } catch (const picture_error& error) {
    return error.what();
  }
  return {};
}

TEST(SavePicture, RefusesOtherNames) {
  const TemporaryFolder folder;
  for (const char* name : {"a", "a.gif", "png", "a.png.txt", ".png"}) {
    const fs::path file = folder.path() / name;
    EXPECT_FALSE(is_picture_name(file));
    EXPECT_EQ(failure_of(file),
              "Cannot save " + file.string() + ":\nThe name of a picture ends in .png or .svg");
    EXPECT_FALSE(fs::exists(file));
  }
}

TEST(SavePicture, NamesTheFileAndTheReasonOfAFailure) {
  const TemporaryFolder folder;
  const fs::path missing = folder.path() / "missing" / "a.png";
  EXPECT_TRUE(failure_of(missing).starts_with("Cannot save " + missing.string() + ":\n"))
      << failure_of(missing);
  EXPECT_GT(failure_of(missing).size(), missing.string().size() + 16);
  const fs::path taken = folder.path() / "folder.png";
  fs::create_directory(taken);
  EXPECT_TRUE(failure_of(taken).starts_with("Cannot save " + taken.string() + ":\n"));
  EXPECT_EQ(folder.names().size(), 1U);
}

TEST(SavePicture, ReplacesTheOldFileAndLeavesNothingElse) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "a.svg";
  write_text(file, "old");
  save_picture(sample(), file);
  EXPECT_EQ(text_of(file), svg_bytes(sample()).toStdString());
  EXPECT_EQ(folder.names().size(), 1U);
}

TEST(SavePicture, AFailureLeavesTheOldFile) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "a.png";
  write_text(file, "old");
  Picture picture = sample();
  picture.height = 0;
  EXPECT_THROW(save_picture(picture, file), picture_error);
  EXPECT_EQ(text_of(file), "old");
  EXPECT_EQ(folder.names().size(), 1U);
}

TEST(Clipboard, HasThePictureInBothForms) {
  const auto data = picture_mime_data(sample());
  EXPECT_EQ(qvariant_cast<QImage>(data->imageData()), picture_image(sample()));
  EXPECT_EQ(data->data("image/svg+xml"), svg_bytes(sample()));
  Picture picture = sample();
  picture.width = 0;
  EXPECT_THROW(picture_mime_data(picture), picture_error);
}

TEST(FilePictureWriter, LeavesNumbersInTheLocaleOfPrograms) {
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

}  // namespace
}  // namespace kov
