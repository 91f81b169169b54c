#include "options/option_rows.h"

#include <cstddef>
#include <iterator>

#include "core/setting_names.h"

namespace burrowmark {
namespace {

constexpr OptionRow kGeneral[] = {
    {L"Ask before deleting items", true,
     L"Specifies that when working in Organize Folders window you will have to confirm deleting an item or a group. If "
     L"you don't select this, groups and shortcuts will be automatically deleted without a warning message. Enable "
     L"this option to avoid unintentional errors when editing Organized Folders."},
    {L"Ask for deleting shorcuts to invalid folders", true,
     L"Specifies that you will be able to confirm deleting a shortcut with invalid path when trying to open it from "
     L"main menu. If you don't select this, when you will open a folder shortcut with invalid path just a warning "
     L"message will be is displayed on the screen."},
    {L"Open New Item dialog on drag-drop one path", true,
     L"Specifies that New Item dialog will be displayed when dragging and dropping one folder or drive in Organize "
     L"Folders window. Don't select this option if you want to add paths to Organized Folders even faster."},
};

constexpr OptionRow kAppearance[] = {
    {L"Show System Folders", true,
     L"Specifies whether to display System Folders group, or not. If you don't select this System Folders group won't "
     L"be accessible and it's contents won't be stored in the configuration file."},
    {L"Show Drives", true,
     L"Specifies whether to display Drives group, or not. If you don't select this Drives group will not be "
     L"accessible."},
    {L"Show Help", true,
     L"Specifies whether to display Help item in the application's main menu, or not. If you select this, use the item "
     L"to gain access full help on Burrowmark features from the main menu."},
    {L"Show Options", true,
     L"Specifies whether to display Options item in the application's main menu, or not. If you don't select this, "
     L"Options dialog (i.e. this dialog) is also accessible from Organize Folders window's main menu (Files > "
     L"Options)."},
    {L"Show shortcut icons in menu", true,
     L"It specifies whether you want menu icons to be displayed next to the shortcuts in the main menu. Icons of "
     L"groups and Open-All shortcuts will always be displayed."},
    {L"Show more important system shortcuts before the others", true,
     L"Specifies whether to move more important system shortcuts in the root of the System Folders group. Select this "
     L"if you want faster access to the most often used system shortcuts such as Desktop, Favorites, My Documents, "
     L"Windows, Program Files, and Send To."},
    {L"Display shortcuts in menu with alternate color", true,
     L"Specifies whether to paint red the currently selected shortcut in the application's main menu."},
};

constexpr OptionRow kAdvanced[] = {
    {L"Load Burrowmark on Windows startup (Recommended)", true,
     L"Specifies whether to have Burrowmark available immediately after Windows startup. If you select this Burrowmark "
     L"will load automatically to your Taskbar tray."},
    {L"Use Windows Explorer context menu extensions", true,
     L"Specifies whether you want to put 'Folder Report', 'Copy Address' and 'Organize Folder' items in Windows "
     L"Explorer context menu. 'Folder Report' creates a printout with the contents of the selected folder. 'Copy "
     L"Address' puts the absolute address of the selected folder or document in the Clipboard. 'Organizer Folder' adds "
     L"a shortcut to the selected drive or folder in the Burrowmark."},
    {L"Show Organized Folders on Desktop", true,
     L"Specifies whether you want to have Organized Folders on the Desktop. This feature is very useful when you are "
     L"opening files and folders from others applications and they are in your Organized Folders."},
    {L"Show Organized Folders in Send To menu", true,
     L"Specifies whether you want to have Organized Folders in the Send To menu. This feature is very useful when you "
     L"want to copy files to another folder very fast."},
    {L"Show Organized Folders in Favorites", false,
     L"Specifies whether you want to have Organized Folders in the Favorites Menu. This option is handy when you are "
     L"opening files or folders in your Organized Folders from Internet Explorer."},
    {L"Show System Folders group in directories", false,
     L"Specifies whether you want to have System Folders group's folder shortcuts on the Desktop, in Send To menu and "
     L"Favorites."},
    {L"Automatically refresh directories", true,
     L"Specifies whether to refresh Organized Folders on the Desktop, Send To and Favorties Menu each time you close "
     L"Organize Folders window. Don't select this if you want Organize Folders window to close faster after editing "
     L"Organized Folders. You can always manually refresh Organized Folders from Organize Folders window's main menu. "
     L"(Tools > Refresh Organized Folders)"},
    {L"Enable keyboard shortcuts (hot keys)", true,
     L"Specifies whether you want to be able to use keyboard shortcuts (or so called hot keys) to open folders by "
     L"pushing keys SHIFT+CTRL and a number key. This feature is NOT available on Windows 95, 95 OSR 2, 98, 98 SE and "
     L"ME operating systems."},
};

static_assert(std::size(kGeneral) == static_cast<std::size_t>(General::kCount));
static_assert(std::size(kAppearance) == static_cast<std::size_t>(Appearance::kCount));
static_assert(std::size(kAdvanced) == static_cast<std::size_t>(Advanced::kCount));

}  // namespace

std::span<const OptionRow> GeneralRows() { return kGeneral; }
std::span<const OptionRow> AppearanceRows() { return kAppearance; }
std::span<const OptionRow> AdvancedRows() { return kAdvanced; }

}  // namespace burrowmark
