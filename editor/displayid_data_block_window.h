// What the forms of the DisplayID data blocks have in common, and those that both versions have for a kind of theirs.
#pragma once

#include "editor/item_window.h"
#include "editor/resolution_windows.h"
#include "model/edid/captions.h"

// What all of them begin with.
template <class X>
class TDisplayIdDataBlockWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TDisplayIdDataBlockWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        this->Group(L"Revision").Number(Field<&Fields::revision>, L"00");
    }
    // Three letters, or the number of a vendor.
    void AddVendorId() {
        auto group = this->Group(L"Vendor ID");
        if constexpr (std::is_same_v<decltype(Fields::vendorId), VNT::String>) {
            group.Text(Field<&Fields::vendorId>, L"WWW");
        } else {
            group.Hex(Field<&Fields::vendorId>, L"AAAAAA");
        }
    }
    void AddProduct() {
        this->Group(L"Product ID").Hex(Field<&Fields::productId>, L"AAAA");
        this->Group(L"Serial number").Number(Field<&Fields::serialNumber>, L"0000000000");
    }
    void AddHexData() {
        this->Group(L"Hex data").SizedHex(Field<&Fields::Extra>, [this] { return X::GetExtraRoom(this->GetBytes()); });
    }
    // `FormWindow` is the form of a resolution.
    template <class FormWindow>
    void AddResolutions() {
        this->Group(L"").List(
            Field<&Fields::resolutions>, VNT::DetailedResolutionCaptions,
            [this] { return this->item.GetListLimits(this->GetBytes()); }, &Forms::EditItem<FormWindow>);
        // Bytes that are no timing of the list: they are seen, and can be taken away.
        auto rest = this->Group(L"Hex data");
        rest.VisibleIf([this] { return hasRest = hasRest || !this->fields.Extra.IsEmpty(); });
        rest.SizedHex(Field<&Fields::Extra>,
                      [this] { return X::GetExtraRoom(this->GetBytes()) - this->fields.resolutions.GetSize(); });
    }

private:
    bool hasRest = false;
};

template <class X>
class TDisplayIdProductIdDataBlockWindow : public TDisplayIdDataBlockWindow<X> {
public:
    using Fields = typename TDisplayIdDataBlockWindow<X>::Fields;

protected:
    TDisplayIdProductIdDataBlockWindow(UI::Window* parent, const std::wstring& className)
        : TDisplayIdDataBlockWindow<X>(parent, className, L"Product Identification") {
        this->AddVendorId();
        this->AddProduct();
        this->Group(L"Week").Number(Field<&Fields::week>, L"000").Check(Field<&Fields::modelYear>, L"Model year");
        this->Group(L"Year").Number(Field<&Fields::year>, L"0000");
        this->Group(L"Name").SizedText(Field<&Fields::name>,
                                       [this] { return this->item.GetNameRoom(this->GetBytes()); });
    }
};

template <class X>
class TDisplayIdTiledDisplayTopologyDataBlockWindow : public TDisplayIdDataBlockWindow<X> {
public:
    using Fields = typename TDisplayIdDataBlockWindow<X>::Fields;

protected:
    TDisplayIdTiledDisplayTopologyDataBlockWindow(UI::Window* parent, const std::wstring& className)
        : TDisplayIdDataBlockWindow<X>(parent, className, L"Tiled Display Topology") {
        this->Group(L"Single tile behavior").Combo(Field<&Fields::singleTileBehavior>, Fields::SingleTile::Texts);
        this->Group(L"Multiple tile behavior").Combo(Field<&Fields::multipleTileBehavior>, Fields::MultipleTile::Texts);
        this->Group(L"Physical display enclosures").Combo(Field<&Fields::enclosures>, Fields::Enclosures::Texts);
        this->Group(L"Tile count").Number(Field<&Fields::hTileCount>, L"00").Number(Field<&Fields::vTileCount>, L"00");
        this->Group(L"Tile location")
            .Number(Field<&Fields::hTileLocation>, L"00")
            .Number(Field<&Fields::vTileLocation>, L"00");
        this->Group(L"Tile resolution")
            .Number(Field<&Fields::hTileResolution>, L"00000")
            .Number(Field<&Fields::vTileResolution>, L"00000");
        this->Group(L"Pixel multiplier").Number(Field<&Fields::pixelMultiplier>, L"000");
        this->Group(L"Bezel size")
            .Number(Field<&Fields::bezelTop>, L"000")
            .Number(Field<&Fields::bezelBottom>, L"000")
            .Number(Field<&Fields::bezelRight>, L"000")
            .Number(Field<&Fields::bezelLeft>, L"000");
        this->AddVendorId();
        this->AddProduct();
    }
};
