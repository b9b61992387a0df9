#include "settings/network/wireless_lan_page.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "resources/text_qt.h"
#include "settings/emulation/key_names.h"
#include "settings/field_binder_qt.h"
#include "settings/grid/grid_dialog.h"
#include "settings/network/network_choices.h"
#include "settings/network/network_settings.h"
#include "settings/page_controls_qt.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {
namespace {

QLineEdit* Edit(const char* name, int characters) {
  return MakeEdit(name, {.characters = characters});
}

}  // namespace

WirelessLanPage::WirelessLanPage(Document& doc, QWidget* parent)
    : SettingsPage(doc, parent), binder_(new FieldBinder(doc, this)) {
  setObjectName("WLAN_DLG");
  auto* top = new QHBoxLayout;
  top->addWidget(BuildIp(), 0);
  top->addWidget(BuildLogin(), 1);
  auto* reset = new QPushButton(tr("Reset"));
  reset->setObjectName("reset");
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(BuildSecurity(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addLayout(bottom);

  binder_->Bind(NetworkBindings());
  // The key length shows the keys anew; WEP on or off enables them.
  binder_->OnChanged([this] { ShowKeys(); });
  // The Reset button sits in the login group's corner, beside "Auto Sign On".
  findChild<QGridLayout*>("login_grid")->addWidget(reset, 6, 3);
  setTabOrder(findChild<QWidget*>("auto_sign_on"), reset);  // Tab stays in the group
  connect(reset, &QPushButton::clicked, this, [this] {
    SetNetworkDefaults(this->doc());
    LoadControls();
  });
}

QWidget* WirelessLanPage::BuildIp() {
  auto* box = new QGroupBox(tr("IP"));
  auto* grid = new QGridLayout(box);
  grid->addWidget(MakeCheck("dhcp_server", tr("Enable DHCP Server")), 0, 0, 1, 2);
  AddFormRow(grid, 1, tr("Subnet Mask :"), Edit("subnet_mask", 15));
  AddFormRow(grid, 2, tr("Gateway :"), Edit("gateway", 15));
  AddFormRow(grid, 3, tr("DNS Server :"), Edit("dns_server", 15));
  AddFormRow(grid, 4, tr("Terminal IP :"), Edit("terminal_ip", 15));
  AddFormRow(grid, 5, tr("Local Name :"), Edit("local_name", 15));
  AddFormRow(grid, 6, tr("SSID :"), Edit("ssid", 15));
  grid->setRowStretch(7, 1);
  grid->setVerticalSpacing(2);
  return box;
}

QWidget* WirelessLanPage::BuildLogin() {
  auto* box = new QGroupBox(tr("Login"));
  auto* grid = new QGridLayout(box);
  grid->setObjectName("login_grid");
  hosts_ = new QComboBox;
  hosts_->setObjectName("host");
  hosts_->setEditable(true);
  hosts_->setInsertPolicy(QComboBox::NoInsert);
  // Typing edits the active entry only: no completion from the other entries, which would
  // also make the one completed to active when the box is left.
  hosts_->setCompleter(nullptr);
  hosts_->lineEdit()->setMaxLength(static_cast<int>(kHostIpOrName.width) - 1);
  AddFormRow(grid, 0, tr("Host IP or Name :"), hosts_, 3);
  AddFormRow(grid, 1, tr("Telnet Port :"), Edit("telnet_port", 5));
  auto* keep_alive = Edit("keep_alive", 3);
  AddFormRow(grid, 2, tr("Keep Alive "), keep_alive);
  grid->addWidget(new QLabel(tr("(minutes) ")), 2, 2, 1, 2);
  struct Text {
    const char* caption;
    const char* edit;
    const char* key;
  };
  // The logout command and key are shown too: the summary lists them, so they can be edited.
  constexpr Text kTexts[] = {{"Login Name :", "login_name", "login_name_key"},
                             {"Login Password :", "login_password", "login_password_key"},
                             {"Logout Command :", "logout_command", "logout_key"}};
  for (int i = 0; i < 3; ++i) {
    QLineEdit* edit = Edit(kTexts[i].edit, 10);
    AddFormRow(grid, 3 + i, tr(kTexts[i].caption), edit);
    QComboBox* key = MakeCombo(kTexts[i].key, KeyFieldChoices());
    auto* key_label = new QLabel(tr("Key :"));
    key_label->setBuddy(key);
    grid->addWidget(key_label, 3 + i, 2);
    grid->addWidget(key, 3 + i, 3);
  }
  grid->addWidget(MakeCheck("auto_sign_on", tr("Auto Sign On")), 6, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(7, 1);
  grid->setVerticalSpacing(2);

  connect(hosts_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (loading_ || index < 0) return;
    WriteNumber(doc().record, kActiveHostIpOrName, static_cast<std::uint32_t>(index));
  });
  connect(hosts_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    // The typed text becomes the active entry, in the record and in the list.
    StoreActiveHostText(doc(), ToRecordText(text));
    const int active = static_cast<int>(ReadNumber(doc().record, kActiveHostIpOrName));
    loading_ = true;
    hosts_->setItemText(active, text);
    hosts_->setCurrentIndex(active);
    hosts_->lineEdit()->setText(text);
    hosts_->lineEdit()->setCursorPosition(static_cast<int>(text.size()));
    loading_ = false;
  });
  return box;
}

QWidget* WirelessLanPage::BuildSecurity() {
  auto* box = new QGroupBox(tr("Security"));
  auto* grid = new QGridLayout(box);
  grid->addWidget(MakeCheck("eap", tr("EAP")), 0, 0);
  auto* identity_label = new QLabel(tr("Identity :"));
  QLineEdit* identity = Edit("eap_id", 12);
  identity_label->setBuddy(identity);
  auto* password_label = new QLabel(tr("Password :"));
  QLineEdit* password = Edit("eap_password", 12);
  password_label->setBuddy(password);
  auto* eap_row = new QHBoxLayout;
  eap_row->addWidget(identity_label);
  eap_row->addWidget(identity, 1);
  eap_row->addSpacing(12);  // room between the identity and the password's label
  eap_row->addWidget(password_label);
  eap_row->addWidget(password, 1);
  grid->addLayout(eap_row, 0, 1, 1, 3);

  // Authentication, WEP and its key length share one row.
  auto* authentication = new QButtonGroup(this);
  authentication->setObjectName("authentication");
  auto* auth_row = new QHBoxLayout;
  const auto choices = AuthenticationChoices();
  for (std::size_t i = 0; i < choices.size(); ++i) {
    auto* radio = new QRadioButton(QtText(choices[i]));
    radio->setObjectName(QStringLiteral("authentication_%1").arg(i));
    authentication->addButton(radio, static_cast<int>(i));
    auth_row->addWidget(radio);
  }
  auth_row->addSpacing(16);
  auth_row->addWidget(MakeCheck("wep", tr("WEP")));
  auto* length = new QComboBox;
  length->setObjectName("wep_key_length");
  for (std::string_view entry : WepKeyLengthChoices()) length->addItem(QtText(entry));
  auto* length_label = new QLabel(tr("Key Length :"));
  length_label->setBuddy(length);
  auth_row->addWidget(length_label);
  auth_row->addWidget(length);
  auth_row->addStretch();
  grid->addLayout(auth_row, 1, 0, 1, 4);

  auto* active = new QButtonGroup(this);
  active->setObjectName("active_wep_key");
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  for (int k = 0; k < kWepKeyCount; ++k) {
    keys_[k] = new QLineEdit;
    keys_[k]->setObjectName(QStringLiteral("wep_key_%1").arg(k + 1));
    keys_[k]->setFont(fixed);
    keys_[k]->setMinimumWidth(QFontMetrics(fixed).horizontalAdvance(QString(39, '0')) + 12);
    auto* label = new QLabel(tr("Key %1:").arg(k + 1));
    label->setBuddy(keys_[k]);
    auto* radio = new QRadioButton(tr("Active"));
    radio->setObjectName(QStringLiteral("active_wep_key_%1").arg(k + 1));
    active->addButton(radio, k);
    grid->addWidget(label, 2 + k, 0);
    grid->addWidget(keys_[k], 2 + k, 1, 1, 2);
    grid->addWidget(radio, 2 + k, 3);
    AttachGridEditor(
        keys_[k],
        {GridMode::kHex, [this] { return WepKeyBytes(doc()); },
         [this, k] {
           const auto key = FieldBytes(std::span<const std::uint8_t>(doc().record), kWepKey, k);
           return std::vector<std::uint8_t>(key.begin(), key.begin() + WepKeyBytes(doc()));
         },
         [this, k](std::span<const std::uint8_t> bytes) { StoreWepKey(doc(), k, bytes); }});
  }
  grid->setColumnStretch(2, 1);
  grid->setVerticalSpacing(2);
  return box;
}

void WirelessLanPage::Initialise(Document& /*doc*/) { LoadControls(); }

// The Emulation page may have claimed or released keys meanwhile.
void WirelessLanPage::SetActive(Document& /*doc*/) { LoadControls(); }

void WirelessLanPage::Apply(Document& doc) { PadNetworkTexts(doc); }

void WirelessLanPage::LoadControls() {
  binder_->Load();
  ShowKeys();
  ShowHosts();
}

void WirelessLanPage::ShowKeys() {
  const bool enabled = NetworkControlStatesOf(doc()).wep_controls;
  for (int k = 0; k < kWepKeyCount; ++k) {
    StoreShownWepKey(doc(), k);  // the record holds the key as the edit shows it
    keys_[k]->setText(QtText(StoredWepKeyText(doc(), k)));
    keys_[k]->setEnabled(enabled);
  }
}

void WirelessLanPage::ShowHosts() {
  loading_ = true;
  hosts_->clear();
  for (int i = 0; i < kHostIpOrName.count; ++i) {
    hosts_->addItem(FromRecordText(ReadText(doc().record, kHostIpOrName, i)));
  }
  hosts_->setCurrentIndex(static_cast<int>(ReadNumber(doc().record, kActiveHostIpOrName)));
  loading_ = false;
}

}  // namespace veltrix
