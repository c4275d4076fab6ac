-- One row per fiscal month of an account. All else lies in the account's own database; this table lies in
-- the database VosSystem, which all accounts of a server share.
create table VosSystem..UA_Period (
    -- account number of the login
    cAcc_ID   nvarchar(10) not null,
    -- accounting year; 9999 marks a sentinel, which is never listed
    iYear     smallint     not null,
    -- number of the month within the year
    iID       tinyint      not null,
    -- first day and last day, without a time
    dBegin    datetime     not null,
    dEnd      datetime     not null,
    -- 1 is a deleted month
    bIsDelete bit          not null default (0),
    primary key (cAcc_ID, iYear, iID)
)
