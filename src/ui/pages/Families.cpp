#include "ui/pages/Page.h"

#include <algorithm>

namespace varnik::ui {

Node Field(std::string name, int characters) {
    Node node{Node::Kind::Control, std::move(name), {}, {}};
    node.width = characters;
    return node;
}

Node Table(std::string name, int visibleRows) {
    Node node = Field(std::move(name), visibleRows);
    node.share = 1;
    return node;
}

Node Picture(std::string name, int width, int height) {
    Node node = Field(std::move(name), width);
    node.height = height;
    return node;
}

Node Button(std::string name) { return Field(std::move(name)); }

Node Buttons(std::vector<std::string> names) {
    std::vector<Node> nodes;
    for (std::string& name : names) nodes.push_back(Button(std::move(name)));
    return Row(std::move(nodes));
}

Node Row(std::vector<Node> children) { return {Node::Kind::Row, "", std::move(children), {}}; }
Node Column(std::vector<Node> children) { return {Node::Kind::Column, "", std::move(children), {}}; }
Node Form(std::vector<std::vector<Node>> rows) { return {Node::Kind::Form, "", {}, std::move(rows)}; }
Node Card(std::string heading, Node content) {
    return {Node::Kind::Card, std::move(heading), {std::move(content)}, {}};
}
Node Bar(Node content) { return {Node::Kind::Bar, "", {std::move(content)}, {}}; }
Node Inside(std::string frame, Node content) {
    return {Node::Kind::Inside, std::move(frame), {std::move(content)}, {}};
}
Node Stack(std::vector<Node> panels) { return {Node::Kind::Stack, "", std::move(panels), {}}; }
Node Heading(std::string text) { return {Node::Kind::Heading, std::move(text), {}, {}}; }
Node Spring() { return {Node::Kind::Spring, "", {}, {}}; }

namespace {

Node SearchContent(std::string criterion, std::string value, std::string execute, std::string take,
                   std::string found) {
    return Column(
        {Row({Field(std::move(criterion), 22).Label("Search by").Above(),
              Field(std::move(value), 30).Label("Value").Above(),
              Column({Heading(" "), Row({Button(std::move(execute)).Primary(), Button(std::move(take))})}),
              Spring()}),
         Table(std::move(found), 10).Label("Found")});
}

Node DocumentTools(std::vector<std::string> furtherButtons) {
    std::vector<Node> browse{Button("bttnNew").Primary(), Button("bttnDel"), Button("bttnFind"),
                             Button("bttnPrint")};
    for (std::string& further : furtherButtons) browse.push_back(Button(std::move(further)));
    browse.push_back(Spring());
    browse.push_back(Button("bttnClose"));
    return Stack({Inside("FrameBawah", Row(std::move(browse))),
                  Inside("FrameAtas", Row({Button("bttnSave").Primary(), Button("bttnCancel"), Spring()}))});
}

} // namespace

Overlay SearchPanelOver() {
    return {"frmCari", SearchContent("txtKreteria", "txtValue", "cmdExecute", "cmdTutup", "grdCari")};
}

Overlay SecondSearchOver() {
    return {"FrmCari2", SearchContent("TxtKreteria2", "txtValue2", "bttnExecute2", "bttnTutup2", "grdCari2")};
}

Page MasterPage(std::string screen, Node fields, bool searchPanel) {
    Node tools = Row({Button("bttnAdd"), Button("bttnEdit"), Button("bttnDelete"), Button("bttnFind"),
                      Button("bttnPrint"), Spring(), Button("bttnOK").Primary(), Button("bttnCancel"),
                      Spring(), Button("bttnClose")});
    if (searchPanel)
        return {std::move(screen),
                Family::Master,
                Column({std::move(tools), std::move(fields)}),
                {SearchPanelOver()}};
    return {std::move(screen), Family::Master,
            Column({std::move(tools), std::move(fields), Table("grdCari", 10).Label("Found")})};
}

Page DocumentPage(std::string screen, DocumentParts parts) {
    Node foot =
        Row({Inside(std::move(parts.entryFrame), std::move(parts.entry)).Share(1), std::move(parts.totals)});
    Page page{std::move(screen), Family::Document,
              Column({DocumentTools(std::move(parts.furtherButtons)), std::move(parts.header),
                      Table(std::move(parts.lines), 8).Label("Lines"), std::move(foot)})};
    if (parts.search) page.overlays.push_back(SearchPanelOver());
    if (!parts.lookup.empty())
        page.overlays.push_back(
            {parts.lookup, Field(parts.lookup).Label("Look-up list"), Overlay::Where::UnderField, 460, 300});
    return page;
}

Page VoucherPage(std::string screen, VoucherParts parts) {
    std::vector<Node> content{DocumentTools(std::move(parts.furtherButtons)), std::move(parts.head),
                              std::move(parts.entry)};
    if (parts.lines) {
        content.push_back(Table("OrderGrid", 8).Label("Lines"));
        content.push_back(Row({Spring(), Heading("Total"), Field("lblJumBAYAR", 16).Title().Right()}));
    }
    Page page{std::move(screen), Family::Voucher, Column(std::move(content)), {SearchPanelOver()}};
    if (parts.secondSearch) page.overlays.push_back(SecondSearchOver());
    return page;
}

std::vector<std::string> NavigationButtons() { return {"bttnFirst", "bttnPrev", "bttnNext", "bttnLast"}; }

Node GoodsEntry(std::string search, std::string cancel) {
    std::vector<Node> product{Field("txtKodeBrg", 13).Above(), Field("TxtDiskripsi", 24).Above().Share(1)};
    if (!search.empty()) product.push_back(Column({Heading(" "), Button(std::move(search))}));
    product.push_back(Column({Heading(" "), Field("Check2")}));
    return Column({
        Row(std::move(product)),
        Row({Field("txtQty", 7).Above(), Field("TxtSatuan", 8).Above(), Field("txtHarga", 11).Above(),
             Field("TxtBru", 11).Above(), Field("TxtDis", 11).Above(), Field("TxtHrgTot", 11).Above(),
             Spring()}),
        Row({Button("bttnAddLine").Primary(), Button(std::move(cancel)), Spring()}),
        Spring(),
    });
}

Node AddressRest(std::string second) {
    return Row({Field(std::move(second)).Share(1).Label("Address, second line").Bare(),
                Field("TxtAlamat3").Share(1).Label("Address, third line").Bare()});
}

Page DialogPage(std::string screen, Node content, std::vector<std::string> buttons) {
    std::vector<Node> row{Spring()};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        Node button = Button(buttons[i]);
        button.primary = i == 0;
        row.push_back(std::move(button));
    }
    return {std::move(screen), Family::Dialog, Column({std::move(content), Row(std::move(row))})};
}

Page ReportDialogPage(std::string screen, ReportDialogParts parts) {
    std::vector<Node> cards;
    if (!parts.kinds.empty()) {
        std::vector<Node> kinds;
        for (std::string& kind : parts.kinds) kinds.push_back(Button(std::move(kind)));
        kinds.push_back(Spring());
        Node list = Column(std::move(kinds));
        if (!parts.kindsFrame.empty()) list = Inside(std::move(parts.kindsFrame), std::move(list));
        cards.push_back(
            parts.kindsLabel.empty()
                ? Card("Report", std::move(list))
                : Card("", Column({Field(std::move(parts.kindsLabel)).Quiet(), std::move(list), Spring()})));
    }
    cards.push_back(Card("Choice", std::move(parts.choice)).Share(1));
    Page page = DialogPage(std::move(screen), Row(std::move(cards)), {"OKButton", "CancelButton"});
    page.family = Family::ReportDialog;
    return page;
}

const std::vector<Page>& AllPages() {
    static const std::vector<Page> pages = [] {
        std::vector<Page> all;
        for (auto* folder :
             {ShellPages, MasterPages, SalesPages, PurchasesPages, CashbookPages, ReportsPages})
            for (Page& page : folder()) all.push_back(std::move(page));
        return all;
    }();
    return pages;
}

const Page* FindPage(const std::string& screen) {
    const auto found = std::ranges::find(AllPages(), screen, &Page::screen);
    return found == AllPages().end() ? nullptr : &*found;
}

} // namespace varnik::ui
