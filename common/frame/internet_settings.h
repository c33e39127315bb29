// The e-mail, connection, security-policy and hyperlink settings, and the distinguished names of
// the certificates against which messages of the network are checked. Both routines run once at
// start-up, after the system settings; nothing is written back, missing files and keys give the
// defaults, and no message is shown.
#pragma once

namespace mv {

// Fills Internet (texts trimmed and cut to 50 characters; RASProfile and LeaseLine from the
// per-machine "WIN.INI" only), the policy values (EncryptLDAPOption, VerifyLDAPOption,
// DEFINE_AUTH_KEY, DEFINE_CONF_KEY, DebugMode, MIMEType) and the twelve hyperlinks (trimmed).
void InitInternetRecord();

// Fills MVNCERTDN, SO_MVNCERTDN, ECIC_MVNCERTDN, TTRS_MVNCERTDN and MVNCERTCADN from [POLICY] of
// the system configuration file, as they stand.
void GetDNs();

}  // namespace mv
