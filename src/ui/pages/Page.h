#pragma once
// Where the controls of a screen stand: rows and columns, forms of captions and fields, cards, panels that
// take turns or lie over the rest. Pure description, without a toolkit; PageBuilder makes it of widgets.
//
// A page names controls. What it does not name is found by the generic test of all screens, and stands below
// the rest until it is placed.

#include <string>
#include <vector>

namespace varnik::ui {

enum class Family { Master, Document, Voucher, ReportDialog, Dialog, Main, Splash };

struct Node {
    enum class Kind {
        Control, // by name, with its caption before it where it is a field in a form
        Row,
        Column,
        Form,    // rows of cells, captions aligned
        Card,    // a panel on the ground of the window, with a heading when `name` is given
        Bar,     // a strip along the upper edge of the window
        Inside,  // what stands in a frame of the screen
        Stack,   // panels that take turns at one place
        Spring,  // takes what is left
        Heading, // a line of text of the page's own
    };
    Kind kind = Kind::Control;
    std::string name;
    std::vector<Node> children;
    std::vector<std::vector<Node>> rows; // of a form

    std::string label{};   // for a control that has no caption of its own; of a table it is heard, not seen
    std::string labelBy{}; // a label control of the screen that stands before the field
    int labelWidth = 0;    // characters kept free for it, where its caption changes
    int width = 0;         // characters of a field, visible rows of a table, pixels of a picture; 0: as usual
    int height = 0;        // pixels of a picture, lines of a text; 0: as usual
    int wide = 0;          // pixels that a table has at least; 0: as usual
    int span = 1;          // cells of the form that it fills
    int share = 0;         // of the room left over, against its neighbours
    bool primary = false;  // the button that finishes the work
    bool total = false;    // the large amount
    bool bare = false;     // without its caption
    bool title = false;    // a caption in large type
    bool quiet = false;    // a caption in quiet colour
    bool padded = false;   // away from the window's edge
    bool centred = false;
    bool right = false; // a caption that is an amount
    bool above = false; // the caption over the field instead of before it
    bool date = false;  // a text that is a date

    Node Label(std::string text) && { return label = std::move(text), std::move(*this); }
    Node By(std::string control, int characters = 0) && {
        return labelBy = std::move(control), labelWidth = characters, std::move(*this);
    }
    Node Span(int cells) && { return span = cells, std::move(*this); }
    Node Share(int part) && { return share = part, std::move(*this); }
    Node High(int lines) && { return height = lines, std::move(*this); }
    Node Wide(int pixels) && { return wide = pixels, std::move(*this); }
    Node Primary() && { return primary = true, std::move(*this); }
    Node Total() && { return total = true, std::move(*this); }
    Node Title() && { return title = true, std::move(*this); }
    Node Quiet() && { return quiet = true, std::move(*this); }
    Node Padded() && { return padded = true, std::move(*this); }
    Node Bare() && { return bare = true, std::move(*this); }
    Node Right() && { return right = true, std::move(*this); }
    Node Centred() && { return centred = true, std::move(*this); }
    Node Above() && { return above = true, std::move(*this); }
    Node Date() && { return date = true, std::move(*this); }
};

Node Field(std::string name, int characters = 0);
Node Table(std::string name, int visibleRows);
Node Picture(std::string name, int width, int height);
Node Button(std::string name);
Node Buttons(std::vector<std::string> names);
Node Row(std::vector<Node> children);
Node Column(std::vector<Node> children);
Node Form(std::vector<std::vector<Node>> rows);
Node Card(std::string heading, Node content);
Node Bar(Node content);
Node Inside(std::string frame, Node content);
Node Stack(std::vector<Node> panels);
Node Heading(std::string text);
Node Spring();

// A frame or list that lies over the rest while it shows.
struct Overlay {
    enum class Where { Over, UnderField };
    std::string control;
    Node content;
    Where where = Where::Over;
    int width = 0, height = 0; // pixels of the size at load; 0: as much as the page leaves
};

struct Page {
    std::string screen;
    Family family = Family::Dialog;
    Node content;
    std::vector<Overlay> overlays{};
};

// The page of a screen, null when it has none and takes the general arrangement.
const Page* FindPage(const std::string& screen);
const std::vector<Page>& AllPages();

// ---- The families ----

// Eight buttons above, the fields below, the search panel over them; or a permanent list beside them.
Page MasterPage(std::string screen, Node fields, bool searchPanel = true);

// Buttons that take turns above, header, lines, the entry line beside the totals, look-up and search.
struct DocumentParts {
    Node header, entry, totals;
    std::vector<std::string> furtherButtons{}; // after Print, while browsing
    std::string lines = "OrderGrid";
    std::string entryFrame = "FrameIsiBarang";
    std::string lookup = "GridCari"; // "" for none
    bool search = true;              // has a search panel
};
Page DocumentPage(std::string screen, DocumentParts parts);

// Buttons that take turns above, head, the entry line of a payment over its lines, their sum; two searches.
struct VoucherParts {
    Node head, entry;
    std::vector<std::string> furtherButtons{};
    bool lines = true;        // has a grid of lines and their sum
    bool secondSearch = true; // one for what is paid, one for the vouchers
};
Page VoucherPage(std::string screen, VoucherParts parts);
// The buttons that walk through the documents.
std::vector<std::string> NavigationButtons();
// FrmCari2, the search for the vouchers or returns themselves.
Overlay SecondSearchOver();

// The entry line of a document of goods, with its button for the list of products ("" for none) and the one
// that gives up.
Node GoodsEntry(std::string search, std::string cancel);
// The second and third line of an address in one row.
Node AddressRest(std::string second);

// Content above, the finishing buttons at the lower right, the first of them primary.
Page DialogPage(std::string screen, Node content, std::vector<std::string> buttons);

// What is reported at the left, a list of options in their frame ("" and none for a dialog of one report),
// the choice at the right, Print and Cancel below.
struct ReportDialogParts {
    std::string kindsLabel = {}, kindsFrame = {};
    std::vector<std::string> kinds = {};
    Node choice;
};
Page ReportDialogPage(std::string screen, ReportDialogParts parts);

// The search panel frmCari that masters and documents share.
Overlay SearchPanelOver();

// ---- The pages, by folder of the screens ----

std::vector<Page> ShellPages();
std::vector<Page> MasterPages();
std::vector<Page> SalesPages();
std::vector<Page> PurchasesPages();
std::vector<Page> CashbookPages();
std::vector<Page> ReportsPages();

} // namespace varnik::ui
