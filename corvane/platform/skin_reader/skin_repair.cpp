#include "corvane/platform/skin_reader/skin_repair.h"

#include <algorithm>

namespace corvane {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::size_t kNowhere = std::string_view::npos;

bool begins_name(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
         static_cast<unsigned char>(c) >= 128;
}

bool continues_name(char c) {
  return begins_name(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

std::size_t line_breaks(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

struct Tag {
  std::size_t offset = 0;
  std::string name;
  std::string attributes;  // as they stand in the file
  bool closing = false;    // </name>
  bool closed = false;     // <name/>
  bool cut = false;        // without a > at its end
};

// Reads marks from one place to the next; faults inside a tag cost as little of it as possible.
class TagReader {
 public:
  TagReader(std::string_view text, const FaultFound& fault) : text_(text), fault_(fault) {}

  std::size_t place() const { return at_; }

  // The next tag; false at the end of the file.
  bool read(Tag& tag) {
    while (true) {
      at_ = std::min(text_.find('<', at_), text_.size());
      const std::string_view rest = text_.substr(at_);
      if (rest.empty()) return false;
      const bool closing = rest.starts_with("</");
      if (rest.starts_with("<!--")) {
        skip_past(comment_may_end_ ? "-->" : ">", "the comment that begins here has no end",
                  "write --> at its end");
      } else if (rest.starts_with("<?") || rest.starts_with("<!")) {
        skip_past(">", "what begins here has no end", "write > at its end");
      } else if (rest.size() > 2 && begins_name(rest[closing ? 2 : 1])) {
        tag = Tag{at_, {}, {}, closing};
        at_ += closing ? 2 : 1;
        read_tag(tag);
        return true;
      } else {
        fault_(at_++, "a < that begins no tag", "write the tag's name right behind it, or &lt;");
      }
    }
  }

 private:
  void skip_past(std::string_view end, const char* what, const char* to_do) {
    const std::size_t found = text_.find(end, at_);
    if (found != kNowhere) {
      at_ = found + end.size();
      return;
    }
    fault_(at_, what, to_do);
    comment_may_end_ = false;
    at_ = std::min(text_.find('>', at_), text_.size());
  }

  char here() const { return at_ < text_.size() ? text_[at_] : '<'; }
  void skip_blanks() { at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size()); }
  std::string read_until(std::string_view ends) {
    const std::size_t begin = at_;
    at_ = std::min(text_.find_first_of(ends, at_), text_.size());
    return std::string(text_.substr(begin, at_ - begin));
  }
  std::string read_name() {
    const std::size_t begin = at_;
    while (at_ < text_.size() && continues_name(text_[at_])) ++at_;
    return std::string(text_.substr(begin, at_ - begin));
  }

  void read_tag(Tag& tag) {
    tag.name = read_name();
    while (true) {
      skip_blanks();
      tag.closed = here() == '/';
      if (tag.closed) ++at_;
      if (here() == '>') {
        ++at_;
        return;
      }
      if (here() == '<') {
        tag.cut = true;
        fault_(tag.offset, "the tag <" + tag.name + "> has no end", "write > or /> at its end");
        return;
      }
      if (!tag.closed) read_attribute(tag);
    }
  }

  void read_attribute(Tag& tag) {
    const std::size_t begin = at_;
    const std::string name = begins_name(here()) ? read_name() : std::string();
    skip_blanks();
    if (name.empty() || here() != '=') {
      if (at_ == begin) ++at_;
      read_until(" \t\r\n<>/");
      fault_(begin, "something in the tag <" + tag.name + "> is no attribute",
             "write every attribute as name=\"value\"");
      return;
    }
    ++at_;
    skip_blanks();
    const std::string value = read_value(name);
    const std::size_t breaks = line_breaks(text_.substr(begin, at_ - begin)) - line_breaks(value);
    tag.attributes += ' ' + std::string(breaks, '\n') + name + '=' + value;
  }

  // With its quotation marks.
  std::string read_value(const std::string& name) {
    const char mark = here();
    if (mark != '"' && mark != '\'') {
      fault_(at_, "the value of " + name + " stands without quotation marks",
             "write " + name + "=\"value\"");
      std::string value = read_until(" \t\r\n\"'<>");
      if (here() == '>' && value.ends_with('/')) {
        value.pop_back();
        --at_;
      }
      return '"' + value + '"';
    }
    const std::size_t begin = at_++;
    const char ends[] = {mark, '<'};
    const std::string value = read_until({ends, 2});
    // What ends with "=" has run into the next attribute.
    if (here() == mark && !value.ends_with('=')) {
      ++at_;
      return mark + value + mark;
    }
    fault_(begin, "the value of " + name + " has no quotation mark at its end",
           "write " + name + "=\"value\"");
    at_ = begin + 1;
    return mark + read_until(" \t\r\n\"'<>/") + mark;
  }

  std::string_view text_;
  const FaultFound& fault_;
  std::size_t at_ = 0;
  bool comment_may_end_ = true;
};

class Repair {
 public:
  Repair(std::string_view text, std::string_view root_name, const FaultFound& fault)
      : text_(text), root_(root_name), fault_(fault), reader_(text, fault) {}

  std::string run() {
    Tag tag;
    while (!ended_ && reader_.read(tag)) {
      keep_lines(tag.offset);
      take(tag);
      keep_lines(reader_.place());
    }
    if (in_root_ && !ended_) {
      fault_(text_.size() - 1, "the file ends too early",
             "write </" + std::string(root_) + "> at its end");
      finish_root(text_.size() - 1);
    }
    return result_;
  }

 private:
  void keep_lines(std::size_t end) {
    const std::size_t wanted = line_breaks(text_.substr(seen_, end - seen_));
    const std::size_t made = line_breaks(std::string_view(result_).substr(made_));
    if (wanted > made) result_.append(wanted - made, '\n');
    seen_ = end;
    made_ = result_.size();
  }

  void take(const Tag& tag) {
    const bool closes_element = tag.closing && tag.name == open_element_.name;
    check_open_element(closes_element);
    if (!in_root_) {
      begin_root(tag);
    } else if (tag.name == root_) {
      tag.closing ? finish_root(tag.offset) : misplaced(tag);
    } else if (tag.name == "list") {
      take_list_tag(tag);
    } else if (!tag.closing) {
      put(tag, "/>");
      if (!tag.closed && !tag.cut) open_element_ = tag;
    } else if (!closes_element) {
      misplaced(tag);
    }
  }

  // An element of a list may have an end tag of its own, but nothing before it.
  void check_open_element(bool closed_now) {
    if (!open_element_.name.empty() && !closed_now) {
      fault_(open_element_.offset, "the tag <" + open_element_.name + "> is not closed",
             "write /> at its end");
    }
    open_element_ = {};
  }

  void begin_root(const Tag& tag) {
    in_root_ = tag.name == root_ && !tag.closing;
    ended_ = !in_root_ || tag.closed;
    if (in_root_) put(tag, tag.closed ? "/>" : ">");
  }

  void take_list_tag(const Tag& tag) {
    if (tag.closing) {
      in_list_ ? end_list() : misplaced(tag);
      return;
    }
    if (in_list_) {
      fault_(tag.offset, "the list before this one is not closed", "write </list> before this tag");
      end_list();
    }
    put(tag, tag.closed ? "/>" : ">");
    in_list_ = !tag.closed;
  }

  void end_list() {
    result_ += "</list>";
    in_list_ = false;
  }

  void finish_root(std::size_t offset) {
    if (in_list_) {
      fault_(offset, "the last list is not closed", "write </list> at its end");
      end_list();
    }
    result_ += "</" + std::string(root_) + ">";
    ended_ = true;
  }

  void put(const Tag& tag, const char* end) { result_ += '<' + tag.name + tag.attributes + end; }

  void misplaced(const Tag& tag) {
    fault_(tag.offset,
           (tag.closing ? "the tag </" : "the tag <") + tag.name + "> does not belong here",
           "remove it");
  }

  std::string_view text_;
  std::string_view root_;
  const FaultFound& fault_;
  TagReader reader_;
  std::string result_;
  std::size_t seen_ = 0;  // of the text; its line breaks are in the result
  std::size_t made_ = 0;  // of the result
  Tag open_element_;      // the name is empty when there is none
  bool in_root_ = false;
  bool in_list_ = false;
  bool ended_ = false;  // what follows does not count
};

}  // namespace

std::string repaired_skin(std::string_view text, std::string_view root_name,
                          const FaultFound& fault) {
  return Repair(text, root_name, fault).run();
}

}  // namespace corvane
