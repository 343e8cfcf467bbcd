#pragma once

// Every record file of a company folder, byte by byte. The files are shared with the other
// programs of the suite: a program that changes a record writes back all bytes that it read.

#include "store/records/order_block.h"
#include "store/records/rec_art.h"
#include "store/records/rec_bol.h"
#include "store/records/rec_cli.h"
#include "store/records/rec_gnr.h"
#include "store/records/rec_index.h"
#include "store/records/rec_mag.h"
#include "store/records/rec_orc.h"
#include "store/records/rec_prv.h"
#include "store/records/rec_prx.h"
#include "store/records/rec_tot.h"
