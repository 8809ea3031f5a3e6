#pragma once
// The whole public API of ZelmarMediaLib in one include.

#include <ZelmarMediaLib/datatypes/BoostNames.h>
#include <ZelmarMediaLib/datatypes/Cloneable.h>
#include <ZelmarMediaLib/datatypes/Color.h>
#include <ZelmarMediaLib/datatypes/ConstIterator.h>
#include <ZelmarMediaLib/datatypes/EncodingConverter.h>
#include <ZelmarMediaLib/datatypes/GraphicsUtil.h>
#include <ZelmarMediaLib/datatypes/IdentManager.h>
#include <ZelmarMediaLib/datatypes/MTVector.h>
#include <ZelmarMediaLib/datatypes/NotifyDelay.h>
#include <ZelmarMediaLib/datatypes/Observer.h>
#include <ZelmarMediaLib/datatypes/ObserverList.h>
#include <ZelmarMediaLib/datatypes/Pair.h>
#include <ZelmarMediaLib/datatypes/PathUtil.h>
#include <ZelmarMediaLib/datatypes/Point.h>
#include <ZelmarMediaLib/datatypes/ProjectEditRate.h>
#include <ZelmarMediaLib/datatypes/Quad.h>
#include <ZelmarMediaLib/datatypes/Range.h>
#include <ZelmarMediaLib/datatypes/ReadWriteMutex.h>
#include <ZelmarMediaLib/datatypes/Rect.h>
#include <ZelmarMediaLib/datatypes/SubProject.h>
#include <ZelmarMediaLib/datatypes/Subject.h>
#include <ZelmarMediaLib/datatypes/ThreadSafe.h>
#include <ZelmarMediaLib/datatypes/TransformMatrix.h>
#include <ZelmarMediaLib/datatypes/UpdateCollector.h>
#include <ZelmarMediaLib/datatypes/VectorUtil.h>
#include <ZelmarMediaLib/datatypes/XMLIdentified.h>
#include <ZelmarMediaLib/datatypes/XMLRepresentation.h>
#include <ZelmarMediaLib/datatypes/XMLable.h>
#include <ZelmarMediaLib/datatypes/ZelmarObject.h>

#include <ZelmarMediaLib/exceptions/AddRemoveException.h>
#include <ZelmarMediaLib/exceptions/CollisionException.h>
#include <ZelmarMediaLib/exceptions/DanglingWeakPtrException.h>
#include <ZelmarMediaLib/exceptions/DefaultMediaDispatcherException.h>
#include <ZelmarMediaLib/exceptions/IOException.h>
#include <ZelmarMediaLib/exceptions/IndexException.h>
#include <ZelmarMediaLib/exceptions/KeyFrameException.h>
#include <ZelmarMediaLib/exceptions/LinkException.h>
#include <ZelmarMediaLib/exceptions/ParserException.h>
#include <ZelmarMediaLib/exceptions/ThreadLockingException.h>
#include <ZelmarMediaLib/exceptions/TypeException.h>
#include <ZelmarMediaLib/exceptions/ValueException.h>
#include <ZelmarMediaLib/exceptions/ZelmarMediaLibException.h>

#include <ZelmarMediaLib/parameters/Attributable.h>
#include <ZelmarMediaLib/parameters/Attribute.h>
#include <ZelmarMediaLib/parameters/Identified.h>
#include <ZelmarMediaLib/parameters/Transformer.h>

#include <ZelmarMediaLib/effects/CompositeEffect.h>
#include <ZelmarMediaLib/effects/Effect.h>
#include <ZelmarMediaLib/effects/EffectTimeConverter.h>
#include <ZelmarMediaLib/effects/Effectable.h>
#include <ZelmarMediaLib/effects/ParametricEffectableUtil.h>
#include <ZelmarMediaLib/effects/VectorEffectable.h>

#include <ZelmarMediaLib/commands/Command.h>
#include <ZelmarMediaLib/commands/CommandHandler.h>
#include <ZelmarMediaLib/commands/CommandHistory.h>
#include <ZelmarMediaLib/commands/CommandHistoryState.h>
#include <ZelmarMediaLib/commands/CommandPair.h>
#include <ZelmarMediaLib/commands/MultiCommand.h>
#include <ZelmarMediaLib/commands/NullCmd.h>

#include <ZelmarMediaLib/project/CommandObserver.h>
#include <ZelmarMediaLib/project/InternalProject.h>
#include <ZelmarMediaLib/project/Project.h>
