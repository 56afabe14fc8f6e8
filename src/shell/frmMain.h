#pragma once
// Holds the drop-down menus of the main window; never shown itself.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class frmMain : public ProgramScreen {
public:
    frmMain(Services& services, forms::StatusBar& statusBar);

    forms::Menu mnuFile{*this, "mnuFile", "&File"};
    forms::MenuItem mnuFileBackup{mnuFile, "mnuFileBackup", "&Back Up"};
    forms::MenuItem mnuSetupPerusahaan{mnuFile, "mnuSetupPerusahaan", "&Company Setup"};
    forms::MenuItem mnuFilePageSetup{mnuFile, "mnuFilePageSetup", "&Set Up Printer"};
    forms::MenuItem mnuFileExit{mnuFile, "mnuFileExit", "E&xit"};

    forms::Menu mnuTools{*this, "mnuTools", "&Tools"};
    forms::MenuItem mnuToolUser{mnuTools, "mnuToolUser", "&User Setup"};
    forms::MenuItem mnuConnect{mnuTools, "mnuConnect", "Database Connection"};
    forms::MenuItem mnuToolKonstanta{mnuTools, "mnuToolKonstanta", "&Set Up Konstanta"};
    forms::MenuItem mnuToolPeriode{mnuTools, "mnuToolPeriode", "Set Up &Periode"};
    forms::MenuItem mnuViewStatusBar{mnuTools, "mnuViewStatusBar", "Status &Bar"};
    forms::MenuItem mnuWindowCascade{mnuTools, "mnuWindowCascade", "&Cascade"};
    forms::MenuItem mnuWindowTileHorizontal{mnuTools, "mnuWindowTileHorizontal", "Tile Horizontally"};
    forms::MenuItem mnuWindowTileVertical{mnuTools, "mnuWindowTileVertical", "Tile Vertically"};
    forms::MenuItem mnuWindowArrangeIcons{mnuTools, "mnuWindowArrangeIcons", "&Arrage Icons"};

    forms::Menu mnuHelp{*this, "mnuHelp", "&Help"};
    forms::MenuItem mnuHelpContents{mnuHelp, "mnuHelpContents", "&Help Contents"};
    forms::MenuItem mnuHelpvisit{mnuHelp, "mnuHelpvisit", "&Visit Website "};
    forms::MenuItem mnuHelpAbout{mnuHelp, "mnuHelpAbout", "&About Software "};

    // Captions alone: no label opens these two menus, the tree leads to their screens.
    forms::Menu mnuMaster{*this, "mnuMaster", "&Master"};
    forms::MenuItem mnuBarang{mnuMaster, "mnuBarang", "&Barang/Jasa"};
    forms::MenuItem mnuPelanggan{mnuMaster, "mnuPelanggan", "&Pelanggan"};
    forms::MenuItem mnuSupplier{mnuMaster, "mnuSupplier", "&Suppleir"};
    forms::MenuItem mnuJenisProduk{mnuMaster, "mnuJenisProduk", "&Jenis Produk"};
    forms::MenuItem mnuKasBank{mnuMaster, "mnuKasBank", "&Kas /  Bank"};
    forms::MenuItem mnuJenisBiaya{mnuMaster, "mnuJenisBiaya", "Jenis Biaya"};
    forms::MenuItem mnuDetailBiaya{mnuMaster, "mnuDetailBiaya", "Detail Bia&ya"};
    forms::Menu mnuLaporan{*this, "mnuLaporan", "&Laporan"};
    forms::MenuItem mnuLapPenjualan{mnuLaporan, "mnuLapPenjualan", "&Penjualan"};
    forms::MenuItem mnuLapPembelian{mnuLaporan, "mnuLapPembelian", "Pem&belian"};
    forms::MenuItem mnuLapPersediaan{mnuLaporan, "mnuLapPersediaan", "P&ersediaan"};
    forms::MenuItem mnuLapBiaya{mnuLaporan, "mnuLapBiaya", "B&iaya"};

private:
    void Opens(forms::MenuItem& item);
    void ToggleStatusBar();

    forms::StatusBar& statusBar_;
};

} // namespace varnik
