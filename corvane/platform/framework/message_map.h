#pragma once
// A window class's message map: a constant table of messages and handlers. The message decides the
// handler's signature when the table is compiled:
//
//   const MessageMap* CMyLayer::GetMessageMap() const {
//     static constexpr auto kMessages = MessageTable(
//         On<WM_CREATE>(&CMyLayer::OnCreate),                  // int OnCreate(LPCREATESTRUCT)
//         On<WM_LBUTTONDOWN>(&CMyLayer::OnLButtonDown),        // void OnLButtonDown(UINT, CPoint)
//         OnMessage<WM_LAYER_DRAW>(&CMyLayer::OnDraw),         // LRESULT OnDraw(WPARAM, LPARAM)
//         OnRegistered(&mouse_down_message, &CMyLayer::OnMouseDown),  // number known at run time
//         OnCommandId(kMenuMove, &CMyLayer::OnMenuMove));      // void OnMenuMove()
//     static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
//     return &map;
//   }
//
// A message without an entry is looked up in the base's map, and at last gets its default handling.
// A handler may destroy its window and delete its object.
#include <array>
#include <concepts>
#include <cstddef>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#include "corvane/platform/framework/message_traits.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CWnd;

enum class MessageKind { window_message, registered_message, command };

// One row with the handler's type erased.
struct MessageEntry {
  MessageKind kind;
  UINT number;             // the message, or the command's id
  UINT code;               // command: the notification code (0: menu)
  const UINT* registered;  // registered_message: where its number stands (0: not yet registered)
  // False: the handler leaves the message to its default handling.
  bool (*call)(const void* table, CWnd& target, WPARAM wparam, LPARAM lparam, LRESULT& result);
};

// A found entry; `entry` is null when none was found.
struct MessageMatch {
  const MessageEntry* entry = nullptr;
  const void* table = nullptr;

  explicit operator bool() const { return entry != nullptr; }
  bool call(CWnd& target, WPARAM wparam, LPARAM lparam, LRESULT& result) const {
    return entry->call(table, target, wparam, lparam, result);
  }
};

// Constant data that lives as long as the program. `base` is searched after the entries.
struct MessageMap {
  std::span<const MessageEntry> entries;
  const void* table = nullptr;
  const MessageMap* base = nullptr;

  MessageMatch find(UINT message) const;
  MessageMatch find_command(UINT id, UINT code) const;
};

template <class Handler>
struct HandlerParts {
  static constexpr bool kIsMemberFunction = false;
};
template <class Result, class Target, class... Arguments>
struct HandlerParts<Result (Target::*)(Arguments...)> {
  static constexpr bool kIsMemberFunction = true;
  using Owner = Target;
  using Signature = Result(Arguments...);
};
template <class Result, class Target, class... Arguments>
struct HandlerParts<Result (Target::*)(Arguments...) const>
    : HandlerParts<Result (Target::*)(Arguments...)> {};

template <UINT message>
concept KnownMessage = !std::derived_from<MessageTraits<message>, NoMessageTraits>;

template <class Traits, class Handler>
concept FitsTraits = HandlerParts<Handler>::kIsMemberFunction &&
                     std::same_as < typename HandlerParts<Handler>::Signature,
typename Traits::Signature > ;

// Whether a member function may stand in On<message>(...).
template <UINT message, class Handler>
concept HandlesMessage = KnownMessage<message> && FitsTraits<MessageTraits<message>, Handler>;

template <class Traits, class Handler>
struct MessageBinding {
  MessageKind kind;
  UINT number;
  UINT code;
  const UINT* registered;
  Handler handler;

  bool call(CWnd& target, WPARAM wparam, LPARAM lparam, LRESULT& result) const {
    using Owner = typename HandlerParts<Handler>::Owner;
    static_assert(std::derived_from<Owner, CWnd>,
                  "a message handler is a member of a window class");
    auto& owner = static_cast<Owner&>(target);
    const auto bound = [&owner, this](auto&&... arguments) {
      return (owner.*handler)(std::forward<decltype(arguments)>(arguments)...);
    };
    return Traits::call(bound, wparam, lparam, result);
  }
};

template <UINT message, class Handler>
constexpr auto On(Handler handler) {
  static_assert(KnownMessage<message>,
                "this message has no MessageTraits: use OnMessage, or add its traits");
  if constexpr (KnownMessage<message>) {
    static_assert(HandlesMessage<message, Handler>,
                  "the handler's result or parameters are not what the message gives: "
                  "see MessageTraits<message>::Signature in message_traits.h");
    return MessageBinding<MessageTraits<message>, Handler>{MessageKind::window_message, message, 0,
                                                           nullptr, handler};
  }
}

template <UINT message, class Handler>
constexpr auto OnMessage(Handler handler) {
  using Traits = message_families::Generic;
  static_assert(FitsTraits<Traits, Handler>,
                "a generic message's handler is LRESULT handler(WPARAM, LPARAM)");
  return MessageBinding<Traits, Handler>{MessageKind::window_message, message, 0, nullptr, handler};
}

// `number` outlives the table and holds the number from RegisterWindowMessageW.
template <class Handler>
constexpr auto OnRegistered(const UINT* number, Handler handler) {
  using Traits = message_families::Generic;
  static_assert(FitsTraits<Traits, Handler>,
                "a registered message's handler is LRESULT handler(WPARAM, LPARAM)");
  return MessageBinding<Traits, Handler>{MessageKind::registered_message, 0, 0, number, handler};
}

// WM_COMMAND of a menu item (code 0) or of a control's notification; asked by CWnd::OnCommand.
template <class Handler>
constexpr auto OnCommandId(UINT id, Handler handler, UINT code = 0) {
  using Traits = message_families::Plain;
  static_assert(FitsTraits<Traits, Handler>, "a command's handler is void handler()");
  return MessageBinding<Traits, Handler>{MessageKind::command, id, code, nullptr, handler};
}

// The rows of one class. It must have static storage (the map made by Extending refers to it).
template <class... Bindings>
class MessageTable {
 public:
  consteval explicit MessageTable(Bindings... bindings)
      : bindings_(bindings...), entries_(make_entries(std::index_sequence_for<Bindings...>())) {
    if (has_duplicate()) two_rows_for_the_same_message();
  }

  // `base`: the map of the base class; null: nothing more to search.
  constexpr MessageMap extending(const MessageMap* base) const { return {entries_, this, base}; }
  constexpr std::span<const MessageEntry> entries() const { return entries_; }

 private:
  // Not constant: calling it ends the compilation. The second row could never be reached.
  static void two_rows_for_the_same_message() {}
  constexpr bool has_duplicate() const;

  template <std::size_t index>
  static bool call(const void* table, CWnd& target, WPARAM wparam, LPARAM lparam, LRESULT& result) {
    const auto& own = *static_cast<const MessageTable*>(table);
    return std::get<index>(own.bindings_).call(target, wparam, lparam, result);
  }
  template <std::size_t... index>
  constexpr auto make_entries(std::index_sequence<index...>) const {
    return std::array<MessageEntry, sizeof...(Bindings)>{
        make_entry<index>(std::get<index>(bindings_))...};
  }
  template <std::size_t index, class Binding>
  static constexpr MessageEntry make_entry(const Binding& binding) {
    return {binding.kind, binding.number, binding.code, binding.registered, &call<index>};
  }

  std::tuple<Bindings...> bindings_;
  std::array<MessageEntry, sizeof...(Bindings)> entries_;
};

template <class... Bindings>
constexpr bool MessageTable<Bindings...>::has_duplicate() const {
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (entries_[i].kind == entries_[j].kind && entries_[i].number == entries_[j].number &&
          entries_[i].code == entries_[j].code &&
          entries_[i].registered == entries_[j].registered) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace corvane
