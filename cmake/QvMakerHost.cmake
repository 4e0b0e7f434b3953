# The host name of the maker's web site, on which the legal documents are: each family sets its own.
set(QV_COMMONS_MAKER_HOST www.example.com CACHE STRING
    "Host name of the maker's web site, for the privacy policy and the terms of service")

set(label "[A-Za-z0-9]([A-Za-z0-9-]*[A-Za-z0-9])?")
if(NOT QV_COMMONS_MAKER_HOST MATCHES "^${label}(\\.${label})*$")
  message(FATAL_ERROR "QV_COMMONS_MAKER_HOST is \"${QV_COMMONS_MAKER_HOST}\", which is not a valid host name: "
                      "give letters, digits, hyphens and full stops alone, for example www.example.com")
endif()
unset(label)
