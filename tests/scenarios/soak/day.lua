-- A day of business by chance with every kind of document: day.lua [SEED [DOCUMENTS [first]]]. With "first"
-- the shop is opened and the script ends there; without arguments it is opened and then does its day.
dofile(arg[0]:match ".*/" .. "../support/business.lua")
local seed, documents = tonumber(arg[1]) or 20261122, tonumber(arg[2]) or 25
if arg[3] == "first" or not arg[1] then open_shop() end
if arg[3] == "first" then return end
math.randomseed(seed)
open_screens()
for _ = 1, documents do one_more() end
expect(messages(), {})
