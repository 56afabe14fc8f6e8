-- A day of business by chance with every kind of document: day.lua SEED DOCUMENTS [first]. With "first" the
-- shop is opened and the script ends there.
dofile(arg[0]:match ".*/" .. "../support/business.lua")
if arg[3] == "first" then return open_shop() end
math.randomseed(tonumber(arg[1]))
open_screens()
for _ = 1, tonumber(arg[2]) do one_more() end
expect(messages(), {})
