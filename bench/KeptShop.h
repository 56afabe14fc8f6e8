#pragma once
// Filled shops are kept from run to run, below the build folder, by size and by what they are made of.

#include <filesystem>

namespace varnik::bench {

// A program folder of its own with the shop in it, gone with the object. Made when it is not kept yet.
class ShopCopy {
public:
    explicit ShopCopy(long sales);
    ~ShopCopy();
    ShopCopy(const ShopCopy&) = delete;
    ShopCopy& operator=(const ShopCopy&) = delete;

    const std::filesystem::path& Folder() const { return folder_; }
    std::filesystem::path Database() const;

private:
    std::filesystem::path folder_;
};

} // namespace varnik::bench
