#include "corvane/platform/skin_reader/control_mgr.h"

#include <string>
#include <string_view>

#include "corvane/platform/skin_reader/append_record.h"
#include "corvane/platform/skin_reader/attribute_values.h"
#include "corvane/platform/skin_reader/element_rules.h"
#include "corvane/platform/skin_reader/skin_document.h"

namespace corvane {
namespace {

constexpr std::int32_t kMaxCoordinate = 32767;
constexpr std::string_view kStatePlace = "{state}";
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGrey = RGB(128, 128, 128);
constexpr COLORREF kWhite = RGB(255, 255, 255);

std::int32_t position_of(pugi::xml_node node, const char* attribute) {
  return number_of(node, attribute, -kMaxCoordinate - 1, kMaxCoordinate).value_or(0);
}

std::int32_t extent_of(pugi::xml_node node, const char* attribute) {
  return number_of(node, attribute, 0, kMaxCoordinate).value_or(0);
}

RECT rect_of(pugi::xml_node node) {
  const auto x = position_of(node, "x");
  const auto y = position_of(node, "y");
  return {x, y, x + extent_of(node, "width"), y + extent_of(node, "height")};
}

// The image that "images" names for one state, for example "save_{state}.png".
std::wstring image_from_pattern(pugi::xml_node node, std::string_view state) {
  std::string name = node.attribute("images").value();
  const auto place = name.find(kStatePlace);
  if (place == std::string::npos) return {};
  return parse_image_name(name.replace(place, kStatePlace.size(), state)).value_or(L"");
}

std::wstring image_of(pugi::xml_node node, const char* attribute, std::string_view state = {}) {
  const auto own = node.attribute(attribute);
  if (own != nullptr) return parse_image_name(own.value()).value_or(L"");
  return state.empty() ? std::wstring{} : image_from_pattern(node, state);
}

void read_images(pugi::xml_node node, _MYCONTROL& control) {
  control.image = image_of(node, "image", "normal");
  control.hover_image = image_of(node, "image-hover", "hover");
  control.pressed_image = image_of(node, "image-pressed", "pressed");
  control.disabled_image = image_of(node, "image-disabled", "disabled");
  control.selected_image = image_of(node, "image-selected", "selected");
  control.forward_image = image_of(node, "image-forward");
  control.backward_image = image_of(node, "image-backward");
}

void read_caption_look(pugi::xml_node node, _MYCONTROL& control) {
  const auto color = color_of(node, "text-color").value_or(kBlack);
  control.text_color = color;
  control.hover_text_color = color_of(node, "text-color-hover").value_or(color);
  control.pressed_text_color = color_of(node, "text-color-pressed").value_or(color);
  control.disabled_text_color = color_of(node, "text-color-disabled").value_or(kGrey);
  control.selected_text_color = color_of(node, "text-color-selected").value_or(color);
  control.padding_left = extent_of(node, "padding-left");
  control.padding_top = extent_of(node, "padding-top");
  control.padding_right = extent_of(node, "padding-right");
  control.padding_bottom = extent_of(node, "padding-bottom");
}

bool is_position(std::string_view value) {
  return parse_number(value, -kMaxCoordinate - 1, kMaxCoordinate).has_value();
}

bool is_extent(std::string_view value) {
  return parse_number(value, 0, kMaxCoordinate).has_value();
}

bool is_image(std::string_view value) { return parse_image_name(value).has_value(); }

bool is_image_pattern(std::string_view value) {
  return is_image(value) && value.find(kStatePlace) != std::string_view::npos;
}

constexpr char kPosition[] = "a whole number from -32768 to 32767";
constexpr char kExtent[] = "a whole number from 0 to 32767";
constexpr char kImage[] = "the name of a file in the folder image";

constexpr AttributeRule kListRules[] = {{"id", is_any_number, kAnyNumber, true},
                                        {"background", is_color, kColor}};
constexpr AttributeRule kControlRules[] = {
    {"id", is_any_number, kAnyNumber, true},
    {"x", is_position, kPosition},
    {"y", is_position, kPosition},
    {"width", is_extent, kExtent},
    {"height", is_extent, kExtent},
    {"images", is_image_pattern, "the name of a file in the folder image with {state} in it"},
    {"image", is_image, kImage},
    {"image-hover", is_image, kImage},
    {"image-pressed", is_image, kImage},
    {"image-disabled", is_image, kImage},
    {"image-selected", is_image, kImage},
    {"image-forward", is_image, kImage},
    {"image-backward", is_image, kImage},
    {"caption", is_any_number, kAnyNumber},
    {"text-color", is_color, kColor},
    {"text-color-hover", is_color, kColor},
    {"text-color-pressed", is_color, kColor},
    {"text-color-disabled", is_color, kColor},
    {"text-color-selected", is_color, kColor},
    {"padding-left", is_extent, kExtent},
    {"padding-top", is_extent, kExtent},
    {"padding-right", is_extent, kExtent},
    {"padding-bottom", is_extent, kExtent},
    {"tool-tip", is_any_text, kAnyText}};

void check(const SkinDocument& document, pugi::xml_node list) {
  check_attributes(document, list, kListRules);
  check_contents(document, list, "control");
  for (const auto& node : list.children("control")) {
    check_attributes(document, node, kControlRules);
    check_contents(document, node, "");
  }
}

void append_control(pugi::xml_node node, std::list<_MYCONTROL*>& controls) {
  auto control = std::make_unique<_MYCONTROL>();
  control->id = *id_of(node);
  control->rect = rect_of(node);
  read_images(node, *control);
  read_caption_look(node, *control);
  control->tool_tip = text_of(node, "tool-tip");
  if (const auto caption = id_of(node, "caption")) {
    control->caption_ids = std::make_unique<std::int32_t[]>(1);
    control->caption_ids[0] = *caption;
  }
  append_record(controls, std::move(control));
}

}  // namespace

int CControlMgr::Load(const char* path) {
  document_ = SkinDocument::load(path, "controls");
  if (document_) check_contents(*document_, document_->root(), "list");
  return document_ ? 1 : 0;
}

DWORD CControlMgr::ReadControl(std::list<_MYCONTROL*>& controls, int list_id,
                               DWORD* background) const {
  if (!document_) return 0;
  const auto list = document_->list(list_id);
  if (!list) {
    document_->complain_at(0,
                           "there is no list " + std::to_string(list_id) + ", which a window reads",
                           "add it, for example from the default skin");
    return 0;
  }
  check(*document_, list);
  if (background != nullptr) *background = color_of(list, "background").value_or(kWhite);
  DWORD count = 0;
  for (const auto& node : list.children("control")) {
    if (!id_of(node)) continue;
    append_control(node, controls);
    ++count;
  }
  return count;
}

std::vector<int> CControlMgr::ListIds() const {
  return document_ ? document_->list_ids() : std::vector<int>{};
}

std::vector<int> CControlMgr::Lines(int list_id) const {
  return document_ ? document_->record_lines(document_->list(list_id), "control")
                   : std::vector<int>{};
}

}  // namespace corvane
