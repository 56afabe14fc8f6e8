-- One posting of each kind, for whoever wants to disturb it: posting.lua WHAT prepare brings the shop to where
-- the posting can be made, posting.lua WHAT makes it between "armed" and "over" and then works on.
dofile(arg[0]:match ".*/" .. "../support/business.lua")
local first = "000000000100" -- the number of the first document of each kind
local sold = {{Goods[1], "9"}, {Goods[2], "3"}, {Goods[6], "1"}} -- of two lots, of one, a service
local bought = {{Goods[1], "4", "30"}, {Goods[3], "2", "20"}, {Goods[6], "1", "5"}}
local function a_sale() Post.sale(Buyers[1], sold) end
local function a_purchase() Post.purchase(Sellers[1], bought) end
local function take_back() Post.take_back(first, "8") end
local function send_back() Post.send_back(first, "3") end
local function receipt() Post.receipt{first} end
local function payment() Post.payment{first} end

-- What has to stand before, and the posting.
local postings = {
    sale = {{}, a_sale},
    sale_to_a_stranger = {{}, function() Post.sale("STRANGER", {{Goods[2], "2"}}) end},
    sale_deleted = {{a_sale}, function() Post.sale_deleted(first) end},
    cash = {{}, function() a_sale() scenario "armed" Post.cash() end, late = true},
    receipt = {{a_sale}, receipt},
    receipt_deleted = {{a_sale, receipt}, function() Post.receipt_deleted(first) end},
    take_back = {{a_sale}, take_back},
    take_back_deleted = {{a_sale, take_back}, function() Post.take_back_deleted(first) end},
    purchase = {{}, a_purchase},
    purchase_deleted = {{a_purchase}, function() Post.purchase_deleted(first) end},
    send_back = {{a_purchase}, send_back},
    send_back_deleted = {{a_purchase, send_back}, function() Post.send_back_deleted(first) end},
    payment = {{a_purchase}, payment},
    income = {{}, function() Post.income "700" end},
    income_deleted = {{function() Post.income "700" end}, function() Post.income_deleted(first) end},
    expense = {{}, function() Post.expense{{Costs[1], "40"}, {Costs[2], "2"}} end},
    expense_deleted = {{function() Post.expense{{Costs[1], "40"}} end}, function() Post.expense_deleted(first) end},
    payment_deleted = {{a_purchase, payment}, function() Post.payment_deleted(first) end},
}
local before, post = table.unpack(postings[arg[1]])
open_screens()
if arg[2] == "prepare" then
    for _, each in ipairs(before) do each() end
    return
end
if not postings[arg[1]].late then scenario "armed" end
pcall(post)
scenario "over"
messages()
if current() == "Bayar" then click "bttnClose" end
-- However it ended, the screens are ready for the next document, the one of the posting too.
Post.purchase(Sellers[2], {{Goods[2], "1", "10"}})
Post.sale(Buyers[2], {{Goods[2], "1"}})
if arg[1]:match "^receipt" then Post.receipt{value "Select Max(NoInvoice) From Invoice"} end
if arg[1]:match "^payment" then Post.payment{value "Select Max(NoFaktur) From Faktur"} end
if arg[1]:match "^take_back" then Post.take_back(value "Select Max(NoInvoice) From Invoice", "1") end
if arg[1]:match "^send_back" then Post.send_back(value "Select Max(NoFaktur) From Faktur", "1") end
