// A window with a layer of three buttons from the default skin; prints the buttons that are
// clicked.
#include <cstdio>

#include "corvane/frame/layer_messages.h"
#include "corvane/layers/buttons/window_layer.h"
#include "corvane/platform/framework/framework.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/skin/xml_list_mgr.h"

namespace {

using namespace corvane;

constexpr int kToolbarList = 100;  // the list of the default skin that holds the buttons
constexpr int kBackground = 7;     // its picture behind them
constexpr int kButtons[] = {1, 2, 3};
constexpr RECT kPlace{0, 0, 296, 76};

class CHostWindow : public CWnd {
 public:
  bool Open() {
    const wchar_t* window_class = AfxRegisterWndClass(CS_DBLCLKS);
    if (!CreateEx(0, window_class, L"Minimal host", WS_POPUP, kPlace, nullptr, 0)) return false;
    skin_.Load({kToolbarList});
    layer_.SetXmlListMgr(&skin_);
    for (const int id : kButtons) layer_.AddBtn(id);
    CRect unused;
    skin_.LoadGdiImage(background_, unused, kBackground);
    layer_.SetBgImage(background_.GetImage(), unused);
    layer_.CreateEx(0, window_class, L"", WS_CHILD, kPlace, this, 0);
    layer_.ShowWindow(SW_SHOW);
    ShowWindow(SW_SHOW);
    return true;
  }

 protected:
  const MessageMap* GetMessageMap() const override {
    static constexpr auto kMessages =
        MessageTable(OnMessage<WM_LAYER_BTN_CLICK>(&CHostWindow::OnButton));
    static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
    return &map;
  }

 private:
  LRESULT OnButton(WPARAM id, LPARAM) {
    std::printf("button %d was clicked\n", static_cast<int>(id));
    std::fflush(stdout);
    return 0;
  }

  // Both outlive the layer, which borrows them.
  CXmlListMgr skin_;
  CGdiImage background_;
  CWindowLayer layer_;
};

class CHostApp : public CWinApp {
 public:
  bool InitInstance() override {
    m_pMainWnd = &window_;
    return window_.Open();
  }

 private:
  CHostWindow window_;
};

}  // namespace

int main() {
  CHostApp app;
  return RunApp(app);
}
