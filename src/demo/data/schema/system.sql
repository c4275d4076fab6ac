-- One row per fiscal month of an account.
create table VosSystem..UA_Period (
    cAcc_ID   nvarchar(10) not null,             -- account number of the login
    iYear     smallint     not null,             -- accounting year; 9999 is a sentinel, never listed
    iID       tinyint      not null,             -- number of the month within the year
    dBegin    datetime     not null,             -- first day
    dEnd      datetime     not null,             -- last day, without a time
    bIsDelete bit          not null default (0), -- 1 is a deleted month
    primary key (cAcc_ID, iYear, iID)
)
