#include "screens/Dialogs.h"

namespace prismfall {

std::unique_ptr<Window> MakeDialog(std::string_view name, std::string_view title, int innerWidth, int innerHeight) {
    auto dialog = std::make_unique<Window>();
    dialog->name = name;
    dialog->title = title;
    dialog->innerWidth = innerWidth;
    dialog->innerHeight = innerHeight;
    dialog->background = "DialogBackground";
    dialog->isDialog = true;
    return dialog;
}

void ShowDialog(const VMain& main, std::unique_ptr<Window>& dialog) {
    Platform& desktop = main.platform;
    const Extent mainSize = desktop.OuterSize(main.window);
    const int frameHeight = mainSize.height - desktop.InnerSize(main.window).height;
    const Place corner = desktop.Position(main.window);
    const int aside = (mainSize.width - desktop.OuterSize(*dialog).width) / 2;
    desktop.SetPosition(*dialog, {corner.left + aside, corner.top + frameHeight});
    const bool wasHidden = desktop.ShowModally(*dialog);
    if (!wasHidden) dialog.reset();
}

}  // namespace prismfall
