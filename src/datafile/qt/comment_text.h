#pragma once

#include <QString>
#include <string>

namespace kov {

/// How the bytes of a comment stand for characters.
enum class CommentEncoding { utf8, latin1 };

/// UTF-8, but of bytes that are no valid UTF-8, as files from elsewhere hold them, Latin-1, which gives every
/// byte a character.
CommentEncoding encoding_of(const std::string& comment);

/// A comment as a text editor shows it: lines end with "\n", and behind the last one there is no line end.
QString editor_text_of(const std::string& comment);

/// What an editor's text is as a comment: every line ends with "\r\n"; no text is no comment. Characters that
/// Latin-1 does not have make it UTF-8.
std::string comment_of(const QString& editor_text, CommentEncoding encoding = CommentEncoding::utf8);

}  // namespace kov
